// The two frames of the query form in which values are picked.
#include "query/query_form_fixture.h"

namespace zamo {
namespace {

using test::QueryForm;
using test::Texts;

struct ListNames {
  const char* dataList;
  const char* selectList;
  const char* add;
  const char* del;
  const char* addAll;
  const char* clear;
};

constexpr ListNames kAdm = {"DataList_Adm", "SelectAdmList", "ButtonAdd",
                            "ButtonDel",    "Button_AddAll", "ButtonClear"};
constexpr ListNames kCtry = {"DataList_Ctry",  "SelectCtryList",    "Button_AddCtry",
                             "Button_DelCtry", "Button_AddAllCtry", "Button_ClearCtry"};

class QueryFormLists : public QueryForm, public testing::WithParamInterface<ListNames> {
 protected:
  QueryFormLists() {
    for (const char* value : {"F", "SUI", "BEL"}) putNotice(value, value);
    open();
  }
  const ListNames& names = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Both, QueryFormLists, testing::Values(kAdm, kCtry), [](const auto& lists) {
  return lists.param.dataList == kAdm.dataList ? "administrations" : "countries";
});

TEST_P(QueryFormLists, a_pick_enables_add_which_adds_it_once) {
  clickItem(names.dataList, "F");
  EXPECT_TRUE(isEnabled(names.add));
  EXPECT_FALSE(isEnabled(names.clear));
  click(names.add);
  EXPECT_EQ(items(names.selectList), Texts{"F"});
  EXPECT_TRUE(isEnabled(names.clear));
  EXPECT_FALSE(isEnabled(names.del));
  click(names.add);
  EXPECT_EQ(items(names.selectList), Texts{"F"});
  clickItem(names.dataList, "BEL");
  click(names.add);
  EXPECT_EQ(items(names.selectList), (Texts{"F", "BEL"}));
  expectNoBox();
}

TEST_P(QueryFormLists, a_double_click_adds) {
  doubleClickItem(names.dataList, "SUI");
  EXPECT_EQ(items(names.selectList), Texts{"SUI"});
  EXPECT_TRUE(isEnabled(names.clear));
}

TEST_P(QueryFormLists, keys_pick_and_add) {
  list(names.dataList).setFocus();
  QTest::keyClicks(&list(names.dataList), "S");
  EXPECT_TRUE(isEnabled(names.add));
  control(names.add).setFocus();
  QTest::keyClick(&control(names.add), Qt::Key_Space);
  EXPECT_EQ(items(names.selectList), Texts{"SUI"});
}

TEST_P(QueryFormLists, the_focus_alone_picks_nothing) {
  list(names.dataList).setFocus();
  list(names.selectList).setFocus();
  EXPECT_FALSE(isEnabled(names.add));
  EXPECT_FALSE(isEnabled(names.del));
}

TEST_P(QueryFormLists, add_all_takes_the_place_of_what_was_chosen) {
  doubleClickItem(names.dataList, "SUI");
  click(names.addAll);
  EXPECT_EQ(items(names.selectList), (Texts{"BEL", "F", "SUI"}));
  EXPECT_TRUE(isEnabled(names.clear));
  EXPECT_FALSE(isEnabled(names.addAll));
  EXPECT_FALSE(isEnabled(names.add));
  clickItem(names.dataList, "SUI");
  EXPECT_TRUE(isEnabled(names.add));
}

TEST_P(QueryFormLists, add_all_leaves_the_place_that_del_deletes) {
  doubleClickItem(names.dataList, "SUI");
  clickItem(names.selectList, "SUI");
  click(names.addAll);
  EXPECT_TRUE(isEnabled(names.del));
  click(names.del);
  EXPECT_EQ(items(names.selectList), (Texts{"F", "SUI"}));
}

TEST_P(QueryFormLists, add_all_filters_nothing) {
  click(names.addAll);
  EXPECT_EQ(whereOnOk(), "");
}

TEST_P(QueryFormLists, add_after_add_all_filters_by_what_the_list_shows) {
  click(names.addAll);
  doubleClickItem(names.dataList, "F");
  EXPECT_EQ(items(names.selectList), (Texts{"BEL", "F", "SUI"}));
  const std::string column = names.dataList == kAdm.dataList ? "adm" : "ctry";
  EXPECT_EQ(whereOnOk(), " WHERE ((fmtv_vorna." + column + " = 'BEL') OR (fmtv_vorna." + column +
                             " = 'F') OR (fmtv_vorna." + column + " = 'SUI')) ORDER by fmtv_vorna.vornakey");
}

TEST_P(QueryFormLists, del_after_add_all_filters_by_the_rest) {
  click(names.addAll);
  clickItem(names.selectList, "F");
  EXPECT_TRUE(isEnabled(names.del));
  click(names.del);
  EXPECT_EQ(items(names.selectList), (Texts{"BEL", "SUI"}));
  EXPECT_TRUE(isEnabled(names.addAll));
  EXPECT_TRUE(isEnabled(names.del));
  EXPECT_TRUE(isEnabled(names.clear));
  const std::string column = names.dataList == kAdm.dataList ? "adm" : "ctry";
  EXPECT_EQ(whereOnOk(), " WHERE ((fmtv_vorna." + column + " = 'BEL') OR (fmtv_vorna." + column +
                             " = 'SUI')) ORDER by fmtv_vorna.vornakey");
}

TEST_P(QueryFormLists, del_empties_the_list_one_by_one) {
  click(names.addAll);
  clickItem(names.selectList, "F");
  click(names.del);
  click(names.del);
  EXPECT_EQ(items(names.selectList), Texts{"BEL"});
  click(names.del);
  EXPECT_EQ(items(names.selectList), Texts{});
  EXPECT_FALSE(isEnabled(names.del));
  EXPECT_FALSE(isEnabled(names.clear));
  EXPECT_TRUE(isEnabled(names.addAll));
  EXPECT_EQ(whereOnOk(), "");
}

TEST_P(QueryFormLists, clear_empties_the_list) {
  click(names.addAll);
  clickItem(names.selectList, "F");
  click(names.clear);
  EXPECT_EQ(items(names.selectList), Texts{});
  EXPECT_FALSE(isEnabled(names.del));
  EXPECT_FALSE(isEnabled(names.clear));
  EXPECT_TRUE(isEnabled(names.addAll));
  doubleClickItem(names.dataList, "F");
  const std::string column = names.dataList == kAdm.dataList ? "adm" : "ctry";
  EXPECT_EQ(whereOnOk(), " WHERE ((fmtv_vorna." + column + " = 'F')) ORDER by fmtv_vorna.vornakey");
}

}  // namespace
}  // namespace zamo
