#include "platform/run_time_error.h"

#include <cerrno>

#include "platform/code_page.h"

namespace zamo {

RunTimeError fileError(int systemError, const std::string& path) {
  const std::string where = ": " + textFromUtf8(path);
  switch (systemError) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
      return {kFileNotFound, "File not found" + where};
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
      return {kPermissionDenied, "Permission denied" + where};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return {kDiskFull, "Disk full" + where};
    default:
      return {kDeviceError, "Device I/O error" + where};
  }
}

}  // namespace zamo
