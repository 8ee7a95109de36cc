// The road of one notice file, from its choice to its verdict. The window and the companion both go it.
#pragma once

#include <string>

#include "shell/shell.h"

namespace zamo {

enum class Stage { none, structure, basic, complete, load };

// What the checks made of a file.
struct Verdict {
  Stage failedAt = Stage::none;
  bool machineFailed = false;  // an error of the machine, which the user has been shown, stands behind it
  std::string report;          // path of the outcome report, if one was written
  bool mayLoad = false;        // what was found, if anything, doesn't keep the file from being loaded
  bool passed() const { return failedAt == Stage::none && !machineFailed; }
};

// The menu commands at their level: choice of the file, then its stages.
void runTextCommand(Shell& shell, std::int16_t level);

// The same file once more, at the same level and without a dialog.
void ButtonReVal(Shell& shell);

// Shows the input file in the text viewer.
void ButtonViewFile(const Shell& shell);

// Lets the user choose a notice file and tests the master template. False on Cancel and with an old template.
bool chooseNoticeFile(Shell& shell);

// Structure check and basic validation of NtcFileName, with their report, statuses and buttons. A report that
// can't be written throws RunTimeError, and `verdict` holds what was known by then.
void checkFormatAndBasic(Shell& shell, Verdict& verdict);

// Complete validation of NtcFileName, with its report, statuses and buttons. What it finds stops no run. A
// report that can't be written throws RunTimeError, and `verdict` holds what was known by then.
void completeValidationNoGeo(Shell& shell, Verdict& verdict);
void completeValidationGeo(Shell& shell, Verdict& verdict);

// Makes the working database of NtcFileName from the master template, loads the notices into it and shows the
// query form.
void createAndLoadDb(Shell& shell, Verdict& verdict);

// The verdict on NtcFileName at the level of the run, with a box for what the stages throw.
Verdict judgeFile(Shell& shell);

// The same, and then the load, unless the structure check or basic validation stopped the run.
Verdict judgeAndLoadFile(Shell& shell);

// Both for a `verdict` that has nothing in it yet. What throws out of them leaves in it what was known by
// then.
void judgeFile(Shell& shell, Verdict& verdict);
void judgeAndLoadFile(Shell& shell, Verdict& verdict);

// Opens a report in the text viewer. Without a viewer a box tells where it is, behind `messageHead`.
void showReportInNotepad(const Host& host, const std::string& path, std::string_view messageHead);

// The outcome report of a notice file.
std::string outcomeReportPath(std::string_view ntcFileName);

}  // namespace zamo
