#include "database/load.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "database/db_connection.h"
#include "database/lookups.h"
#include "database/operation.h"
#include "database/write_notice.h"
#include "model/adm_numeric_base.h"
#include "model/notice_words.h"
#include "model/ntc_reset.h"
#include "noticefile/lines.h"
#include "noticefile/section_reader.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "platform/message.h"
#include "platform/text.h"

namespace zamo {
namespace {

// clang-format off
const Message kNoticeStatus("status: a notice is loaded", "Notice no : %1");
const Message kRepeatsReference("question \"DataBase : Error\": a notice of the administration has the reference already", "Notice No %1: has the same AdminRefID, Adm. Do you still want to save it?");
const Message kRepeatsElements("question \"DataBase : Error\": a notice of the administration has the identifying elements already", "Notice No %1: has the same Identifying elements, Adm. Do you still want to save it?");
const Message kNoRoom("question \"Disk full\", once a load: a notice found no room on the disk; without a user the load stops", "The disk is full or fails. Notice No %1 was not saved to the database, and those behind it may not be either.\r\nDo you want to go on loading?");
const Message kReportTitle("duplicates report: first line, with the notice file", "The report of duplicate notices in %1");
const Message kReportProgram("duplicates report: second line, with the caption of the window", "with %1");
const Message kReportStamp("duplicates report: third line, with date, time and logon name", "On %1 -  %2 by %3");
const Message kReferenceRepeated("duplicates report: the reference of a notice", "t_adm_ref_id = %1 - is repeated");
const Message kElementsRepeatedLeftOut("duplicates report: a notice was left out", " Identifying elements are repeated");
const Message kElementsRepeated("duplicates report: a notice was stored all the same", "Identifying elements are repeated");
const Message kInputNotice("duplicates report: the number of the notice, with a blank before and behind", "Input text file : Notice No : %1");
const Message kBothRows("duplicates report: keys and references of the new and of the old notice", "In Assign/Allot database : RecordIndex : %1 - Admin_ref_id : %2 and RecordIndex : %3 - Admin_ref_id : %4");
const Message kContourRepeated("duplicates report: a contour", "lmz_contour_id = %1 - is repeated ");
const Message kContourOverwritten("duplicates report: the key of a contour that was replaced", "In Sub Area database : RecordIndex : %1 Contour ID has been overwritten");
const Message kReportFallback("box \"Information\": no text viewer for the duplicates report", "The duplicate report cannot be shown, but is available on ");
// clang-format on

// A number as the report prints it.
std::string spaced(std::int64_t number) {
  return " " + std::to_string(number) + " ";
}

// The duplicates report, written as the load goes on. Until it has something to tell there is none, so that a
// load that is killed leaves none either.
class DuplicatesReport {
 public:
  DuplicatesReport(const Host& host, const LoadRun& load)
      : path_(reportPath(load.ntcFileName, host.now())), head_(headOf(host, load)) {
    requireReplaceable(path_);
  }

  void add(std::string_view line) { appendToFile(path_, std::string(line).append(kLineEnd)); }

  // From now on there is one.
  void mark() {
    if (!marked_) replaceFile(path_, head_);
    marked_ = true;
  }

  void finish(const LoadRun& load) const {
    if (marked_) load.showReport(path_, kReportFallback.words());
  }

 private:
  static std::string headOf(const Host& host, const LoadRun& load) {
    const DateTime now = host.now();
    return kReportTitle.filled({textFromUtf8(load.ntcFileName)}) + "\r\n" +
           kReportProgram.filled({load.windowCaption}) + "\r\n" +
           kReportStamp.filled({shortDateText(now.date), timeText(now), getLogonName(host)}) + "\r\n \r\n";
  }

  static std::string reportPath(const std::string& ntcFileName, const DateTime& now) {
    const Date& date = now.date;
    return baseOf(ntcFileName) + "_duplicat_report_" + std::to_string(static_cast<unsigned>(date.day())) +
           std::to_string(static_cast<unsigned>(date.month())) +
           std::to_string(static_cast<int>(date.year())) + "-" + std::to_string(now.hour) +
           std::to_string(now.minute) + std::to_string(now.second) + ".txt";
  }

  std::string path_;
  std::string head_;
  bool marked_ = false;
};

enum class Duplicate { none, reference, elements };

struct Loading {
  const Host& host;
  SectionReading reading;
  const LoadRun& load;
  Connection& connection;
  DuplicatesReport report;
  std::string today;
  std::string logonName;
  std::string email;
  LoadResult result;
  bool isWithoutRoom = false;  // and the user goes on all the same
  // Of the row found by the last test by elements; a test by reference gives none.
  std::string foundReference;
};

Duplicate findDuplicate(Loading& loading, std::int32_t& key) {
  const NtcRec& ntc = loading.reading.ntc;
  const std::string& type = ntc.t_notice_type;
  const bool isAssignment = isExactly(type, {types::GT1, types::GS1});
  const bool isAllotment = isExactly(type, {types::GT2, types::GS2});
  if (!isAssignment && !isAllotment) return Duplicate::none;
  if (findByAdmRefId(loading.host, ntc.t_adm_ref_id, ntc.t_adm, key, loading.connection))
    return Duplicate::reference;
  const auto findByElements = isAssignment ? findAssignmentByElements : findAllotmentByElements;
  return findByElements(loading.host, ntc, key, loading.foundReference, loading.connection)
             ? Duplicate::elements
             : Duplicate::none;
}

void reportLeftOut(Loading& loading, Duplicate duplicate) {
  DuplicatesReport& report = loading.report;
  report.add(duplicate == Duplicate::reference ? kReferenceRepeated.filled({loading.reading.ntc.t_adm_ref_id})
                                               : kElementsRepeatedLeftOut.filled({}));
  report.add(kInputNotice.filled({spaced(loading.result.noticesRead)}));
  report.add(" ");
}

void reportStored(Loading& loading, Duplicate duplicate, std::int64_t newKey, std::int32_t foundKey) {
  DuplicatesReport& report = loading.report;
  const std::string& reference = loading.reading.ntc.t_adm_ref_id;
  report.add(duplicate == Duplicate::reference ? kReferenceRepeated.filled({reference})
                                               : kElementsRepeated.filled({}));
  report.add(kInputNotice.filled({spaced(loading.result.noticesRead)}));
  report.add(kBothRows.filled({spaced(newKey), reference, spaced(foundKey), loading.foundReference}));
  report.add(" ");
}

void reportContour(Loading& loading, const ContourOutcome& outcome) {
  if (outcome.status == ContourStatus::stored) return;
  DuplicatesReport& report = loading.report;
  report.mark();
  report.add(kContourRepeated.filled({loading.reading.ntc.digital.contour.t_contour_id}));
  report.add(kInputNotice.filled({spaced(loading.result.noticesRead)}));
  if (outcome.status == ContourStatus::replaced)
    report.add(kContourOverwritten.filled({spaced(outcome.replacedKey)}));
  report.add(" ");
}

// After the first one, a notice that finds no room on the disk isn't told: its boxes are held back until that
// is known.
bool store(Loading& loading, ContourOutcome& outcome) {
  std::vector<Box> boxes;
  Host host = loading.host;
  if (loading.isWithoutRoom) host.showBox = [&boxes](const Box& box) { boxes.push_back(box); };
  const bool stored = writeNtcToDB(host, loading.reading.ntc, loading.connection, outcome, false);
  const bool lacksRoom = !stored && loading.connection.obstacle() == Obstacle::noRoom;
  if (!lacksRoom) std::for_each(boxes.begin(), boxes.end(), loading.host.showBox);
  if (lacksRoom && !std::exchange(loading.isWithoutRoom, true)) {
    const std::string number = std::to_string(loading.result.noticesRead);
    Box question{kNoRoom.filled({number}), "Disk full", BoxIcon::exclamation};
    question.needsUser = true;
    if (!loading.host.askYesNo(question)) loading.result.end = LoadEnd::stopped;
  }
  return stored;
}

void storeNotice(Loading& loading) {
  NtcRec& ntc = loading.reading.ntc;
  std::int32_t foundKey = 0;
  const Duplicate duplicate = findDuplicate(loading, foundKey);
  std::int32_t lastKey = 0;
  if (duplicate != Duplicate::none) {
    getLastVornaKey(loading.host, loading.connection, lastKey);
    loading.report.mark();
    const Message& question = duplicate == Duplicate::reference ? kRepeatsReference : kRepeatsElements;
    const bool wanted = loading.host.askYesNo(
        {question.filled({std::to_string(loading.result.noticesRead)}), "DataBase : Error"});
    if (!wanted) return reportLeftOut(loading, duplicate);
  }
  ContourOutcome outcome;
  const bool stored = store(loading, outcome);
  loading.result.complete = stored && loading.result.complete;
  if (duplicate != Duplicate::none) {
    reportStored(loading, duplicate, std::int64_t{admNumericBase(ntc.t_adm)} + lastKey + 1, foundKey);
  }
  if (isExactly(ntc.t_notice_type, types::GA1)) reportContour(loading, outcome);
}

void loadHead(Loading& loading) {
  readLine(loading.reading);
  loading.reading.prefix.clear();
  readHeadSection(loading.reading);
  loading.email = loading.reading.ntc.digital.t_email_addr;
}

void loadNotice(Loading& loading) {
  SectionReading& reading = loading.reading;
  NtcRec& ntc = reading.ntc;
  const std::string number = std::to_string(++loading.result.noticesRead);
  readLine(reading);
  resetNtc(ntc);
  ntc.src_update = loading.logonName;
  ntc.d_updated = loading.today;
  ntc.d_rcv = loading.today;
  ntc.digital.contour.d_updated = loading.today;
  ntc.digital.t_email_addr = loading.email;
  reading.prefix = "Notice No : " + number;
  readNoticeSection(reading);
  loading.host.setStatus(kNoticeStatus.filled({number}));
  loading.host.repaint();
  storeNotice(loading);
}

}  // namespace

LoadResult readNtcsFromFileToDB(const Host& host, LineSource& lines, const LoadRun& load,
                                Connection& connection) {
  return guarded(host, "readNtcsFromFileToDB", [&] {
    Loading loading{host,
                    SectionReading{lines, load.ntc, {}, {}, {}},
                    load,
                    connection,
                    DuplicatesReport(host, load),
                    shortDateText(host.now().date),
                    getLogonName(host),
                    {},
                    {0, true, LoadEnd::done},
                    false,
                    {}};
    const bool reachedEnd = guarded(host, "readNtcsFromFileToDB", [&] {
      while (!lines.atEnd() && loading.result.end != LoadEnd::stopped) {
        readLine(loading.reading);
        // Unlike the checks, the load takes these tags in upper case alone.
        if (loading.reading.currentLine == kHeadTag) {
          loadHead(loading);
        } else if (loading.reading.currentLine == kNoticeTag) {
          loadNotice(loading);
        }
      }
      return loading.result.end != LoadEnd::stopped;
    });
    loading.result.complete = reachedEnd && loading.result.complete;
    loading.report.finish(load);
    return loading.result;
  });
}

}  // namespace zamo
