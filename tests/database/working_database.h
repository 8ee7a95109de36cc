// A fresh working database: a copy of the template, open through the adapter and through the engine itself.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "database/connection.h"
#include "database/raw_database.h"
#include "support/places.h"
#include "support/scripted_host.h"
#include "support/temp_folder.h"

namespace zamo::test {

class WorkingDatabase : public testing::Test {
 protected:
  explicit WorkingDatabase(std::string_view name = "working.mdb") : path(copyTemplate(folder, name)) {
    raw.run("PRAGMA synchronous = OFF");
    letTriggersRun(connection.handle());
  }

  // One box without an icon, and nothing else was told or asked.
  void expectOnlyBox(std::string_view text, std::string_view title) {
    EXPECT_EQ(script.boxes.size(), 1U);
    expectBox(0, text, title);
    expectNothingElse();
  }

  void expectBox(std::size_t place, std::string_view text, std::string_view title,
                 BoxIcon icon = BoxIcon::none) {
    ASSERT_LT(place, script.boxes.size());
    EXPECT_EQ(script.boxes[place].text, text);
    EXPECT_EQ(script.boxes[place].title, title);
    EXPECT_EQ(script.boxes[place].icon, icon);
  }

  void expectNoBox() {
    EXPECT_EQ(script.boxes.size(), 0U) << script.boxes[0].title << ": " << script.boxes[0].text;
    expectNothingElse();
  }

  void expectNothingElse() {
    EXPECT_TRUE(script.questions.empty());
    EXPECT_TRUE(script.statuses.empty());
  }

  static std::string copyTemplate(const TempFolder& folder, std::string_view name) {
    const std::string copy = folder.file(name);
    std::filesystem::copy_file(ZAMO_BIN "/MasterHDLK_WQN.mdb", copy);
    return copy;
  }

  TempFolder folder;
  std::string path;
  RawDatabase raw{path};
  Connection connection{path};
  Script script;
  Host host = makeScriptedHost(script);
};

}  // namespace zamo::test
