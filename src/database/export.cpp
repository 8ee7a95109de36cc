#include "database/export.h"

#include <optional>

#include "database/lookups.h"
#include "database/operation.h"
#include "database/read_notice.h"
#include "model/ntc_reset.h"
#include "noticefile/writer_text.h"
#include "platform/dates.h"
#include "platform/message.h"
#include "platform/text.h"

namespace zamo {
namespace {

// clang-format off
const Message kCreatedOn("exported file: first line, with date and time", "File created on %1-%2");
const Message kProcessedBy("exported file: second line, with the logon name", "Processed by %1");
const Message kProgramId("exported file: third line, with the version of the program; a line of one blank follows", "Program Id: %1");
const Message kNothingSelected("box: no notice of the database is to be exported", "There are no updated notices. Output text file will not be created");
const Message kProceed("question \"Create text file\": how many notices are to be exported", "%1 Notices will be written to a text file. Do you want to proceed?");
const Message kCanceled("status: the user doesn't want the export", "Process canceled by the operator");
const Message kNotSaved("status: the export stopped before its end", "Cannot save to text file. Please consult the administrator");
const Message kNoAdministration("box \"Error : Writing Electronic notice\": the first notice of an export has no administration", "Notifiying administration is missing. Cannot create electronic file");
const Message kOtherAdministration("box \"Error : Writing Electronic notice\": a notice of an export is of another administration than those before it", "Notifiying administration is not the same. Cannot create electronic file");
// clang-format on

void writeLine(GrowingFile& stream, std::string_view text) {
  stream.write(text);
  stream.write(kLineEnd);
}

void writeFileHeader(const Host& host, GrowingFile& stream, std::string_view programVersion,
                     std::string_view header) {
  const DateTime now = host.now();
  writeLine(stream, kCreatedOn.filled({shortDateText(now.date), timeText(now)}));
  writeLine(stream, kProcessedBy.filled({getLogonName(host)}));
  writeLine(stream, kProgramId.filled({programVersion}));
  writeLine(stream, " ");
  writeLine(stream, header);
  // The file stands while the user thinks about the question.
  stream.flush();
}

struct Selected {
  std::int64_t records = 0;
  bool failed = false;
};

Selected countSelected(const Host& host, Connection& connection, std::string_view noticeSql,
                       std::string_view contourSql) {
  Selected selected;
  Host listening = host;
  // The lookup tells of nothing but its own failure.
  listening.showBox = [&](const Box& box) {
    selected.failed = true;
    host.showBox(box);
  };
  selected.records = countSelectedRecords(listening, connection, noticeSql, contourSql);
  return selected;
}

bool isWanted(const Host& host, ExportRun& run, const Selected& selected) {
  if (selected.records == 0) {
    run.end = selected.failed ? ExportEnd::failed : ExportEnd::nothingSelected;
    host.showBox({kNothingSelected.filled({}), ""});
    return false;
  }
  if (host.askYesNo({kProceed.filled({std::to_string(selected.records)}), "Create text file"})) return true;
  run.end = ExportEnd::declined;
  host.setStatus(kCanceled.words());
  return false;
}

// Reads the notices of a statement and writes them; a list that can't be read is a failure of the export.
bool writeSelection(const Host& host, WrittenFile& file, std::string_view sql, bool areContours,
                    Connection& connection, std::int32_t& total) {
  std::vector<std::int32_t> keys;
  std::int32_t count = 0;
  const bool listed = areContours ? getContourKeyList(host, keys, count, sql, connection)
                                  : getVornaKeyList(host, keys, sql, count, connection);
  if (!listed) return false;
  total += count;
  return count == 0 || writeNtcsToTxt(host, file, keys, areContours, areContours, connection);
}

bool writeFile(const Host& host, WrittenFile& file, std::string_view noticeSql, std::string_view contourSql,
               Connection& connection, std::int32_t& total) {
  return guarded(host, "exportDBToTxt", [&] {
    const ReadingOneState state(connection);
    if (!writeSelection(host, file, noticeSql, false, connection, total)) return false;
    const std::int32_t notices = total;
    if (!writeSelection(host, file, contourSql, true, connection, total)) return false;
    if (total > notices) return true;
    writeLine(file.stream, makeTailSection(total));
    file.stream.close();
    return true;
  });
}

// Whether the file may take the notice; the first one decides. A refusal is told.
bool hasTheAdministration(const Host& host, WrittenFile& file, const NtcRec& ntc) {
  const bool isGood = file.headWritten ? ntc.t_adm == file.adm : !ntc.t_adm.empty();
  if (isGood) return true;
  const Message& message = file.headWritten ? kOtherAdministration : kNoAdministration;
  host.showBox({message.filled({}), "Error : Writing Electronic notice", BoxIcon::exclamation});
  file.refused = true;
  return false;
}

void writeHead(WrittenFile& file, const NtcRec& ntc) {
  if (file.headWritten) return;
  writeLine(file.stream, makeHeadSection(ntc.t_adm, ntc.digital.t_email_addr));
  file.adm = ntc.t_adm;
  file.headWritten = true;
}

}  // namespace

bool exportDBToTxt(const Host& host, const std::string& fileName, Connection& connection, ExportRun& run,
                   std::string_view noticeSql, std::string_view contourSql, std::string_view header) {
  run.end = ExportEnd::failed;
  return guarded(host, "exportDBToTxt", [&] {
    GrowingFile stream(fileName);
    writeFileHeader(host, stream, run.programVersion, header);
    if (!isWanted(host, run, countSelected(host, connection, noticeSql, contourSql))) return false;
    WrittenFile file{stream, false, 1, {}, false};
    std::int32_t total = 0;
    if (!writeFile(host, file, noticeSql, contourSql, connection, total)) {
      if (file.refused) run.end = ExportEnd::refused;
      host.setStatus(kNotSaved.words());
      host.repaint();
      return false;
    }
    run.noticesWritten = total;
    run.end = ExportEnd::written;
    return true;
  });
}

bool writeNtcsToTxt(const Host& host, WrittenFile& file, const std::vector<std::int32_t>& keys,
                    bool areContours, bool withTail, Connection& connection) {
  return guarded(host, "writeNtcsToTxt", [&] {
    const TargetLookup findTarget = targetsOf(host, connection);
    NtcRec ntc;
    for (const std::int32_t key : keys) {
      resetNtc(ntc);
      resetAdm(ntc);
      // What can't be read of a notice has been told; the rest of it is written.
      (areContours ? readContourNtcFromDB : readNtcFromDB)(host, key, ntc, connection);
      if (connection.isGivenUp()) return false;
      if (!hasTheAdministration(host, file, ntc)) return false;
      writeHead(file, ntc);
      const std::int32_t number = file.nextNumber++;
      writeLine(file.stream,
                areContours ? makeContourNotice(ntc, number) : makeNoticeSection(ntc, number, findTarget));
    }
    if (withTail) {
      writeLine(file.stream, makeTailSection(file.nextNumber - 1));
      file.stream.close();
    }
    return true;
  });
}

TargetLookup targetsOf(const Host& host, Connection& connection) {
  return [&host, &connection](std::int32_t vornakey) {
    TargetElements elements;
    getTargetElements(host, vornakey, elements.freq_assgn, elements.longitude, elements.latitude, connection);
    return elements;
  };
}

}  // namespace zamo
