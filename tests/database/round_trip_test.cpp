// A notice goes from its file into the database, back out of it and into a file again, and stays what it was.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "database/generated_notices.h"
#include "database/read_notice.h"
#include "database/working_database.h"
#include "database/write_notice.h"
#include "model/fields.h"
#include "model/ntc_reset.h"
#include "noticefile/line_source.h"
#include "noticefile/lines.h"
#include "noticefile/notice_writer.h"
#include "noticefile/section_reader.h"
#include "noticefile/writer_text.h"
#include "support/places.h"

namespace zamo {
namespace {

using test::NoticeMaker;
using test::readFile;
using test::TempFolder;
using test::WorkingDatabase;

// --- reading

// What the load puts into each notice.
constexpr const char* kToday = "2009-01-15";

NtcRec readAsTheLoadDoes(SectionReading& reading, const std::string& email) {
  NtcRec& ntc = reading.ntc;
  readLine(reading);
  resetNtc(ntc);
  ntc.src_update = "tester";
  ntc.d_updated = ntc.d_rcv = ntc.digital.contour.d_updated = kToday;
  ntc.digital.t_email_addr = email;
  EXPECT_EQ(readNoticeSection(reading), " ");
  return ntc;
}

std::vector<NtcRec> recordsOf(LineSource lines) {
  NtcRec ntc;
  SectionReading reading{lines, ntc, {}, {}, {}};
  std::string email;
  std::vector<NtcRec> records;
  while (!lines.atEnd()) {
    readLine(reading);
    if (reading.currentLine == "<HEAD>") {
      readLine(reading);
      EXPECT_EQ(readHeadSection(reading), "");
      email = ntc.digital.t_email_addr;
    } else if (reading.currentLine == "<NOTICE>") {
      records.push_back(readAsTheLoadDoes(reading, email));
    }
  }
  return records;
}

std::string fileOf(const NtcRec& ntc) {
  const std::string notice =
      ntc.t_notice_type == "GA1" ? makeContourNotice(ntc, 1) : makeNoticeSection(ntc, 1, {});
  return makeHeadSection(ntc.t_adm, ntc.digital.t_email_addr) + "\r\n" + notice + "\r\n" + makeTailSection(1);
}

NtcRec rewritten(const NtcRec& ntc) {
  const std::vector<NtcRec> records = recordsOf(LineSource::ofText(fileOf(ntc)));
  EXPECT_EQ(records.size(), 1U) << fileOf(ntc);
  return records.empty() ? NtcRec() : records.front();
}

// --- what is lost

enum Where : unsigned { inTheDatabase = 1, inTheFile = 2, inBoth = inTheDatabase | inTheFile };

struct Loss {
  const char* name;
  const char* why;
  unsigned where;  // the records that it sets apart from the first one
  void (*forget)(NtcRec&);
};

bool isTb(const NtcRec& ntc) {
  return ntc.t_notice_type.starts_with("TB");
}
bool isContour(const NtcRec& ntc) {
  return ntc.t_notice_type == "GA1";
}
bool isDirectional(const NtcRec& ntc) {
  return ntc.t_ant_dir == "D";
}

using AzimuthValues = std::array<AzmValueRec, kAzimuths>;

template <typename Change>
void forEachAntenna(NtcRec& ntc, Change change) {
  for (AzimuthValues* values : {&ntc.ant_hgt, &ntc.ant_diagr_h, &ntc.ant_diagr_v}) change(*values);
}

void spellPlainly(std::string& number) {
  if (number.empty()) return;
  char* end = nullptr;
  const double value = std::strtod(number.c_str(), &end);
  EXPECT_EQ(*end, '\0') << number;
  std::array<char, 32> text;
  std::snprintf(text.data(), text.size(), "%.12g", value);
  number = text.data();
}

void spellNumbersPlainly(NtcRec& ntc) {
  for (const auto field :
       {&NtcRec::t_freq_assgn, &NtcRec::t_trg_freq_assgn, &NtcRec::t_hgt_agl, &NtcRec::t_site_alt,
        &NtcRec::t_eff_hgtmax, &NtcRec::t_erp_h_dbw, &NtcRec::t_erp_v_dbw}) {
    spellPlainly(ntc.*field);
  }
  spellPlainly(ntc.digital.allot.t_nb_sub_areas);
  for (std::string& id : ntc.digital.allot.t_contour_id) spellPlainly(id);
  spellPlainly(ntc.digital.contour.t_contour_id);
  spellPlainly(ntc.digital.contour.t_nb_test_pts);
  forEachAntenna(ntc, [](AzimuthValues& values) {
    for (AzmValueRec& one : values) spellPlainly(one.value);
  });
}

void spellAzimuthsPlainly(NtcRec& ntc) {
  forEachAntenna(ntc, [](AzimuthValues& values) {
    for (AzmValueRec& one : values) spellPlainly(one.azm);
  });
}

void putAtTheirAzimuths(NtcRec& ntc) {
  forEachAntenna(ntc, [](AzimuthValues& values) {
    AzimuthValues places;
    for (AzmValueRec& one : values) {
      if (one.present) places.at(static_cast<std::size_t>(std::atoi(one.azm.c_str()) / 10)) = one;
    }
    values = places;
  });
}

void completeSeconds(NtcRec& ntc) {
  for (const CoordinateField& field : kCoordinateFields) {
    if (!(ntc.*field.degrees).empty() && (ntc.*field.seconds).empty()) ntc.*field.seconds = "00";
  }
}

void completeSecondsOfPoints(NtcRec& ntc) {
  for (PointRec& point : ntc.digital.contour.points) {
    if (point.t_long.size() == 6) point.t_long += "00";
    if (point.t_lat.size() == 5) point.t_lat += "00";
  }
}

// clang-format off
const std::array kLosses = {
    Loss{"spellings of numbers", "a column of numbers keeps what a number is worth: 474.0 comes back as 474", inBoth, spellNumbersPlainly},
    Loss{"spellings of azimuths", "theirs is a column of numbers too: 010 comes back as 10", inBoth, spellAzimuthsPlainly},
    Loss{"order of azimuths", "a file fills the places one after the other, the database each azimuth's own", inBoth, putAtTheirAzimuths},
    Loss{"horizontal power of a vertical antenna", "a plane without radiation has no power", inBoth,
         [](NtcRec& ntc) { if (ntc.t_polar == "V") ntc.t_erp_h_dbw.clear(); }},
    Loss{"vertical power of a horizontal antenna", "a plane without radiation has no power", inBoth,
         [](NtcRec& ntc) { if (ntc.t_polar == "H") ntc.t_erp_v_dbw.clear(); }},
    Loss{"diagrams of a non-directional antenna", "it radiates alike in all directions", inBoth,
         [](NtcRec& ntc) { if (!isDirectional(ntc)) ntc.ant_diagr_h = ntc.ant_diagr_v = {}; }},
    Loss{"horizontal diagram of a vertical antenna", "a plane without radiation has no diagram", inBoth,
         [](NtcRec& ntc) { if (isDirectional(ntc) && ntc.t_polar == "V") ntc.ant_diagr_h = {}; }},
    Loss{"vertical diagram of a horizontal antenna", "a plane without radiation has no diagram", inBoth,
         [](NtcRec& ntc) { if (isDirectional(ntc) && ntc.t_polar == "H") ntc.ant_diagr_v = {}; }},
    Loss{"provision", "its column is the reference database's; the writer knows the one provision there is", inBoth,
         [](NtcRec& ntc) { ntc.t_prov.clear(); }},
    Loss{"missing seconds of a position", "the writer writes 00", inTheFile, completeSeconds},
    Loss{"missing seconds of a test point", "the reading from the database gives 00", inBoth, completeSecondsOfPoints},
    Loss{"target reference of a TB2", "it comes back as the plan's reference, and that one is given", inBoth,
         [](NtcRec& ntc) { if (ntc.t_notice_type == "TB2") ntc.t_trg_adm_ref_id.clear(); }},
    Loss{"target reference of a change of the plan", "the entry's own reference comes back for it", inBoth,
         [](NtcRec& ntc) { if (ntc.t_action == "MODIFY" && ntc.t_fragment == "KV19D") ntc.t_trg_adm_ref_id.clear(); }},
    Loss{"target elements of a change of the plan", "a target is kept for notified assignments alone", inBoth,
         [](NtcRec& ntc) {
           if (ntc.t_action != "MODIFY" || ntc.t_fragment != "KV19D") return;
           ntc.t_trg_freq_assgn.clear();
           for (const CoordinateField* field : {&kCoordinateFields[2], &kCoordinateFields[3]}) {
             for (const auto part : {field->degrees, field->minutes, field->seconds, field->hemisphere}) (ntc.*part).clear();
           }
         }},
    Loss{"tenth contour of an allotment", "an allotment has at most nine links", inBoth,
         [](NtcRec& ntc) { ntc.digital.allot.t_contour_id[9].clear(); }},
    Loss{"state of a coordination", "the database says of each that it is complete", inTheDatabase,
         [](NtcRec& ntc) { for (CoordEntryRec& one : ntc.coord.entries) one = {one.adm, "", "", "", "", ""}; }},
    Loss{"free place behind the coordination", "the database knows beforehand how many there are", inTheDatabase,
         [](NtcRec& ntc) { if (ntc.coord.present) ntc.coord.entries.resize(static_cast<std::size_t>(ntc.coord.count)); }},
    Loss{"missing digital part of a TB notice", "the history of a notice marks it", inTheDatabase,
         [](NtcRec& ntc) { if (isTb(ntc)) ntc.digital.present = false; }},
    Loss{"internal remarks of a contour", "a contour has one column of remarks", inBoth,
         [](NtcRec& ntc) { if (isContour(ntc)) ntc.t_int_remarks.clear(); }},
    Loss{"address of a contour", "a contour has no history", inBoth,
         [](NtcRec& ntc) { if (isContour(ntc)) ntc.digital.t_email_addr.clear(); }},
    Loss{"date of receipt and source of a contour", "a contour has no history", inTheDatabase,
         [](NtcRec& ntc) { if (isContour(ntc)) { ntc.src_update.clear(); ntc.d_rcv.clear(); ntc.d_updated.clear(); } }},
    Loss{"date of the contour in another notice", "the load sets it whatever the type", inTheDatabase,
         [](NtcRec& ntc) { if (!isContour(ntc)) ntc.digital.contour.d_updated.clear(); }},
};
// clang-format on

NtcRec forgotten(NtcRec ntc, Where where, const Loss* except = nullptr) {
  for (const Loss& loss : kLosses) {
    if ((loss.where & where) != 0 && &loss != except) loss.forget(ntc);
  }
  return ntc;
}

// --- telling

template <std::size_t Count>
void tell(std::ostream& out, const char* name, const std::array<AzmValueRec, Count>& values) {
  for (std::size_t i = 0; i < Count; ++i) {
    if (values[i] == AzmValueRec()) continue;
    out << name << " " << i << ": " << values[i].present << " " << values[i].azm << " = " << values[i].value
        << "\n";
  }
}

// For the eye: what isn't empty.
std::string told(const NtcRec& ntc) {
  std::ostringstream out;
  for (const FieldRow& row : fieldTable()) {
    if (row.text.in == nullptr || row.text.in(ntc).empty()) continue;
    out << (row.key.empty() ? row.column : row.key) << " = " << row.text.in(ntc) << "\n";
  }
  for (const CoordinateField& field : kCoordinateFields) {
    out << field.key << " = " << ntc.*field.degrees << " " << ntc.*field.minutes << " " << ntc.*field.seconds
        << " " << ntc.*field.hemisphere << "\n";
  }
  const ContourRec& contour = ntc.digital.contour;
  out << "present: " << ntc.op_hours.present << ntc.digital.present << ntc.digital.allot.present
      << contour.present << ntc.coord.present << ", key " << ntc.vornakey << ", dates of contour "
      << contour.d_updated << " " << contour.d_recog << "\n";
  for (const std::string& id : ntc.digital.allot.t_contour_id) out << "[" << id << "]";
  out << "\ncontour " << contour.t_contour_id << "\n";
  for (const PointRec& point : contour.points)
    out << point.present << " " << point.t_long << " " << point.t_lat << "\n";
  out << ntc.coord.count << " coordinated\n";
  for (const CoordEntryRec& one : ntc.coord.entries) {
    out << one.adm << "|" << one.coord_prov << "|" << one.coord_st << "|" << one.src_status << "|"
        << one.d_coord_st << "|" << one.decl_affct << "\n";
  }
  tell(out, "ant_hgt", ntc.ant_hgt);
  tell(out, "ant_diagr_h", ntc.ant_diagr_h);
  tell(out, "ant_diagr_v", ntc.ant_diagr_v);
  return out.str();
}

// --- the trip

class RoundTrip : public WorkingDatabase {
 protected:
  // Stores the notice, reads it back, writes it to a file and reads that; compares all three.
  void travel(const NtcRec& ntc) {
    ++notices;
    types.insert(ntc.t_notice_type);
    const NtcRec fromDatabase = readBack(ntc);
    expectSame(ntc, fromDatabase, inTheDatabase);
    expectSame(ntc, rewritten(fromDatabase), inTheFile);
    expectNoBox();
  }

  NtcRec readBack(NtcRec ntc) {
    ContourOutcome outcome;
    EXPECT_TRUE(writeNtcToDB(host, ntc, connection, outcome, false));
    NtcRec back;
    if (ntc.t_notice_type == "GA1") {
      EXPECT_TRUE(readContourNtcFromDB(host, contourKeyOf(ntc), back, connection));
    } else {
      EXPECT_TRUE(readNtcFromDB(host, ntc.vornakey, back, connection));
    }
    return back;
  }

  std::int32_t contourKeyOf(const NtcRec& ntc) {
    const test::Rows keys =
        raw.rows("SELECT contourkey FROM lmz_contour WHERE contour_id = " + ntc.digital.contour.t_contour_id +
                 " AND adm = '" + ntc.t_adm + "' AND ctry = '" + ntc.t_ctry + "'");
    EXPECT_EQ(keys.size(), 1U);
    return keys.empty() ? 0 : std::stoi(keys[0][0]);
  }

  void expectSame(const NtcRec& before, const NtcRec& after, Where where) {
    const NtcRec expected = forgotten(before, where);
    const NtcRec found = forgotten(after, where);
    EXPECT_TRUE(expected == found) << (where == inTheFile ? "in the file" : "in the database")
                                   << "\n--- before\n"
                                   << told(expected) << "--- after\n"
                                   << told(found);
    for (const Loss& loss : kLosses) {
      const std::string shown =
          std::string(loss.name) + (where == inTheFile ? ", in the file" : ", in the database");
      if ((loss.where & where) == 0 || real.contains(shown)) continue;
      if (forgotten(before, where, &loss) != forgotten(after, where, &loss)) real.insert(shown);
    }
  }

  // Each does set a record apart.
  void expectAllLossesReal() {
    std::set<std::string> all;
    for (const Loss& loss : kLosses) {
      if ((loss.where & inTheDatabase) != 0) all.insert(std::string(loss.name) + ", in the database");
      if ((loss.where & inTheFile) != 0) all.insert(std::string(loss.name) + ", in the file");
    }
    EXPECT_EQ(real, all);
  }

  int notices = 0;
  std::set<std::string> types;
  std::set<std::string> real;
};

const std::set<std::string> kAllTypes = {"GT1", "GS1", "GT2", "GS2", "GA1", "TB2", "TB3", "TB5"};

std::vector<std::string> validExamples() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(ZAMO_EXAMPLES)) {
    const std::string name = entry.path().filename().string();
    if (name.starts_with("valid") && (name.ends_with(".txt") || name.ends_with(".upd")))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  EXPECT_GE(names.size(), 8U);
  return names;
}

TEST_F(RoundTrip, leaves_every_notice_of_the_valid_examples_as_it_was) {
  for (const std::string& name : validExamples()) {
    SCOPED_TRACE(name);
    raw.run("DELETE FROM fmtv_vorna; DELETE FROM lmz_contour");
    for (const NtcRec& ntc : recordsOf(LineSource(ZAMO_EXAMPLES "/" + name))) {
      SCOPED_TRACE(ntc.t_notice_type + " " + ntc.t_adm_ref_id);
      travel(ntc);
    }
  }
  EXPECT_GE(notices, 40);
  EXPECT_EQ(types, kAllTypes);
}

// All but those of the sections in it.
void addKeysOfNotice(const std::string& file, std::set<std::string, std::less<>>& keys) {
  LineSource lines = LineSource::ofText(file);
  while (lines.nextLine() != "<NOTICE>") continue;
  KeyValue line;
  while (splitKeyValue(lines.nextLine(), line)) keys.emplace(line.key);
}

TEST_F(RoundTrip, leaves_generated_notices_of_all_types_as_they_were) {
  NoticeMaker maker(19);
  std::set<std::string, std::less<>> keys;
  for (int i = 0; i < 800 && !HasFailure(); ++i) {
    const char* const type =
        std::array{"GT1", "GS1", "GT2", "GS2", "GA1", "TB2", "TB3", "TB5"}[static_cast<std::size_t>(i % 8)];
    const std::string file = maker.file(type);
    SCOPED_TRACE(file);
    addKeysOfNotice(file, keys);
    const std::vector<NtcRec> records = recordsOf(LineSource::ofText(file));
    ASSERT_EQ(records.size(), 1U);
    ASSERT_EQ(records[0].t_notice_type, type);
    travel(records[0]);
  }
  EXPECT_EQ(notices, 800);
  expectAllLossesReal();
  for (const FieldRow& row : fieldTable()) {
    EXPECT_EQ(keys.contains(row.key), row.storedAs != StoredAs::notRead) << row.key;
  }
}

// --- the whole program

struct Outcome {
  int status = -1;
  std::string output;
};

Outcome runBatch(const TempFolder& folder, const std::string& arguments) {
  const std::string command =
      "cd '" + folder.path() + "' && '" ZAMO_BIN "/zamo-kv19-batch' " + arguments + " >out.log 2>err.log";
  const int result = std::system(command.c_str());
  return {WIFEXITED(result) ? WEXITSTATUS(result) : -1, readFile(folder.file("out.log"))};
}

// What the program shows of each notice of a database, in the order in which they were loaded.
std::vector<std::string> shownNotices(const TempFolder& folder, test::RawDatabase& database,
                                      const std::string& file) {
  std::vector<std::string> notices;
  const auto show = [&](const std::string& options, const std::string& sql) {
    for (const auto& row : database.rows(sql)) {
      const Outcome run = runBatch(folder, "show " + options + file + " " + row[0]);
      EXPECT_EQ(run.status, 0) << row[0];
      EXPECT_TRUE(run.output.starts_with("<NOTICE>\r\n")) << run.output;
      notices.push_back(run.output);
    }
  };
  show("", "SELECT vornakey FROM fmtv_vorna ORDER BY vornakey % 100000");
  show("--contour ", "SELECT contourkey FROM lmz_contour WHERE nb_test_pts IS NOT NULL ORDER BY contourkey");
  return notices;
}

// In any order, as the contours now stand behind the rest.
std::multiset<std::string> toldApartFromLosses(const std::vector<NtcRec>& records) {
  std::multiset<std::string> all;
  for (const NtcRec& ntc : records) all.insert(told(forgotten(ntc, inTheFile)));
  return all;
}

TEST(Program, shows_what_it_loaded_as_a_file_that_it_finds_sound) {
  for (const std::string& name : validExamples()) {
    SCOPED_TRACE(name);
    const TempFolder folder;
    std::filesystem::copy_file(ZAMO_EXAMPLES "/" + name, folder.file(name));
    const Outcome load = runBatch(folder, "load --level 2 " + name);
    EXPECT_EQ(load.status, 0) << load.output;
    const std::vector<NtcRec> before = recordsOf(LineSource(folder.file(name)));

    const std::string database = name.substr(0, name.size() - 4) + ".mdb";
    test::RawDatabase raw(folder.file(database));
    const std::vector<std::string> notices = shownNotices(folder, raw, database);
    EXPECT_EQ(notices.size(), before.size());

    std::string file = "\xEF\xBB\xBF<HEAD>\r\nt_adm = " + before.at(0).t_adm +
                       "\r\nt_email_addr = " + before.at(0).digital.t_email_addr + "\r\n</HEAD>\r\n";
    for (const std::string& notice : notices) file += notice;
    file += "<TAIL>\r\nt_num_notices = " + std::to_string(notices.size()) + "\r\n</TAIL>\r\n";
    folder.write("again.txt", file);
    EXPECT_EQ(toldApartFromLosses(recordsOf(LineSource(folder.file("again.txt")))),
              toldApartFromLosses(before));
    const Outcome check = runBatch(folder, "check --level 2 again.txt");
    EXPECT_EQ(check.status, 0);
    EXPECT_EQ(check.output, "again.txt\tok\n");
    if (check.status != 0) ADD_FAILURE() << readFile(folder.file("again_val_outcome.txt")) << "\n" << file;
  }
}

}  // namespace
}  // namespace zamo
