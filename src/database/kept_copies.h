// Replaced databases that somebody had worked on: copies of them are kept beside the new one.
#pragma once

#include <string>
#include <string_view>

#include "platform/dates.h"

namespace zamo {

// Copies the database, which nobody may have open. The copy's name is that of the database with the time;
// when it is taken, with the next second that is free. Gives its path. Throws RunTimeError, with nothing left
// behind.
std::string keepCopy(const std::string& database, const DateTime& now);

// Takes such a copy back; nothing happens without a path. Errors are left alone.
void removeCopy(const std::string& copy);

// Whether a file of this name is, or would be, a copy of the database of that name; both without a folder.
bool isCopyName(std::string_view name, std::string_view database);

// Removes the oldest copies of the database beyond ten, but for those that somebody has open.
void removeOldCopies(const std::string& database);

}  // namespace zamo
