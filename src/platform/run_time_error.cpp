#include "platform/run_time_error.h"

#include <exception>
#include <new>

namespace zamo {

RunTimeError presentError() {
  try {
    throw;
  } catch (const RunTimeError& error) {
    return error;
  } catch (const std::bad_alloc&) {
    return {kOutOfMemory, "Out of memory"};
  } catch (const std::exception& error) {
    return {kInternalError, error.what()};
  }
}

}  // namespace zamo
