// What the operator reads on the windows of the forms.
#include <gmock/gmock.h>

#include "screens/control_catalogue.h"
#include "screens_window/real_form.h"

namespace zamo::test {
namespace {

constexpr const char* kTypes[] = {"GS1", "GT1", "GS2", "GT2", "GA1", "TB5", "TB3", "TB2"};

class FormCatalogue : public RealForm, public testing::WithParamInterface<const char*> {
 protected:
  void look(const std::function<void(Operator&)>& step) { openNew(GetParam(), step); }
};

INSTANTIATE_TEST_SUITE_P(Forms, FormCatalogue, testing::ValuesIn(kTypes),
                         [](const auto& chosen) { return std::string(chosen.param); });

// What filling in a notice with the action ADD makes of a caption.
std::string captionAfterFilling(const catalogue::Expected& row, FormCode code) {
  if (row.name == "OptInt_Add" && code != kGA1SubAllot) return "ADD";
  if (row.name == "Lbl_trg_or") return "";
  return row.caption;
}

bool isOfKind(const QWidget& widget, ControlKind kind) {
  switch (kind) {
    case ControlKind::text:
      return dynamic_cast<const QLineEdit*>(&widget) != nullptr;
    case ControlKind::memo:
      return dynamic_cast<const QPlainTextEdit*>(&widget) != nullptr;
    case ControlKind::combo:
      return dynamic_cast<const QComboBox*>(&widget) != nullptr;
    case ControlKind::list:
      return dynamic_cast<const QListWidget*>(&widget) != nullptr;
    case ControlKind::option:
      return dynamic_cast<const QRadioButton*>(&widget) != nullptr;
    case ControlKind::button:
      return dynamic_cast<const QPushButton*>(&widget) != nullptr;
    case ControlKind::label:
      return dynamic_cast<const QLabel*>(&widget) != nullptr;
    case ControlKind::frame:
      return dynamic_cast<const QGroupBox*>(&widget) != nullptr;
  }
  return false;
}

TEST_P(FormCatalogue, every_control_is_a_widget_of_its_kind_with_its_caption_and_its_tip) {
  look([](Operator& hand) {
    const FormCode code = hand.form.screen.code();
    const auto expected = catalogue::catalogueOf(code);
    EXPECT_GT(expected.size(), 25U);
    for (const auto& [name, row] : expected) {
      const QWidget& widget = hand.control(madeName(name));
      EXPECT_TRUE(isOfKind(widget, row.kind)) << name;
      EXPECT_EQ(toText(widget.toolTip()), row.tip) << name;
      const bool hasCaption = row.kind == ControlKind::option || row.kind == ControlKind::button ||
                              row.kind == ControlKind::label || row.kind == ControlKind::frame;
      if (!hasCaption) continue;
      EXPECT_EQ(hand.caption(madeName(name)), captionAfterFilling(row, code)) << name;
    }
  });
  expectTold({});
}

TEST_P(FormCatalogue, every_name_is_one_widget) {
  look([](Operator& hand) {
    for (const auto& [name, row] : catalogue::catalogueOf(hand.form.screen.code())) {
      EXPECT_EQ(hand.window.findChildren<QWidget*>(QString::fromStdString(name)).size(), 1) << name;
    }
  });
}

TEST_P(FormCatalogue, every_control_stands_in_the_box_of_its_frame) {
  look([](Operator& hand) {
    for (const auto& [name, row] : catalogue::catalogueOf(hand.form.screen.code())) {
      if (row.frame.empty()) continue;
      EXPECT_TRUE(hand.control(madeName(row.frame)).isAncestorOf(&hand.control(madeName(name))))
          << name << " in " << row.frame;
    }
  });
}

TEST_P(FormCatalogue, every_list_is_offered_whole) {
  look([](Operator& hand) {
    const FormCode code = hand.form.screen.code();
    for (const catalogue::ExpectedList& row : catalogue::kShortLists) {
      if (!isOneOf(code, row.forms) || row.name.starts_with("List")) continue;
      EXPECT_EQ(hand.items(madeName(row.name)), row.items) << row.name;
    }
    for (const catalogue::CodeList& row : catalogue::kCodeLists) {
      if (!isOneOf(code, row.forms)) continue;
      const Texts items = hand.items(madeName(row.name));
      ASSERT_EQ(items.size(), row.rows) << row.name;
      EXPECT_EQ(items[0], "") << row.name;
      EXPECT_EQ(items[1], "AFS") << row.name;
      EXPECT_EQ(items.back(), "ZWE") << row.name;
    }
  });
}

TEST_P(FormCatalogue, the_administration_of_a_stored_notice_cannot_be_changed) {
  look([](Operator& hand) {
    EXPECT_TRUE(hand.sees("Combo_B_Adm"));
    EXPECT_FALSE(hand.control("Combo_B_Adm").isEnabled());
    EXPECT_EQ(hand.text("Combo_B_Adm"), "F");
    EXPECT_EQ(hand.sees("Txt_EmailAddr"), hand.form.screen.code() != kGA1SubAllot);
    EXPECT_EQ(hand.sees("Lbl_EmailAddr"), hand.form.screen.code() != kGA1SubAllot);
  });
}

TEST_P(FormCatalogue, key_and_file_of_the_notice_are_shown_and_cannot_be_typed_over) {
  const std::int32_t key = openNew(GetParam(), [this](Operator& hand) {
    EXPECT_EQ(hand.text("Txt_Ntc_Number"), std::to_string(run.SelKey));
    EXPECT_EQ(hand.text("Txt_Filename"), run.DbFileName);
    for (const ControlName box : ControlNames{"Txt_Ntc_Number", "Txt_Filename"}) {
      hand.click(box);
      QTest::keyClicks(hand.window.focusWidget(), "7");
    }
    EXPECT_EQ(hand.text("Txt_Ntc_Number"), std::to_string(run.SelKey));
    EXPECT_EQ(hand.text("Txt_Filename"), run.DbFileName);
  });
  EXPECT_EQ(run.SelKey, key);
}

struct Title {
  const char* type;
  const char* name;
  const char* title;
};
// clang-format off
constexpr Title kTitles[] = {
    {"GS1", "GS1AssignFrmKV19", "GS1      Digital Sound Broadcasting (T-DAB) Assignment - Data Correction -  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
    {"GT1", "GT1AssignFrmKV19", "GT1      Digital Television Broadcasting (DVB-T) Assignment - Data Correction -  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
    {"GS2", "GS2AllotFrmKV19", "GS2 Digital Sound Broadcasting (T_DAB) Allotment - Data Correction -  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
    {"GT2", "GT2AllotFrmKV19", "GT2 Digital Television Broadcasting (DVB-T) Allotment - Data Correction -  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
    {"GA1", "GA1SubAllotFrmKV19", "GA1 Sub Allotment Area for Digital Broadcasting - Data Correction -  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
    {"TB5", "TB5FrmKV19", "TB5 Suppression of an Assignment/Allotment or Withdrawal of a Notice under treatment - Data Correction -  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
    {"TB3", "TB3FrmKV19", "TB3   Request Publication in Part B - Data Correction - KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
    {"TB2", "TB2FrmKV19", "TB2   Copy of Plan Assignment to Master Register (Art.11PZ) - Data Correction -  KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009"},
};
// clang-format on

class FormTitles : public RealForm {};

TEST_F(FormTitles, each_window_has_its_name_and_its_title) {
  for (const Title& row : kTitles) {
    openNew(row.type, [&row](Operator& hand) {
      EXPECT_EQ(hand.window.objectName().toStdString(), row.name);
      EXPECT_EQ(toText(hand.window.windowTitle()), row.title);
      EXPECT_TRUE(hand.window.isModal());
    });
  }
  EXPECT_EQ(mostWindows, 1);
}

// Where typed letters turn to upper case, by form.
struct Typed {
  const char* kind;
  std::vector<ControlName> upper;
  std::vector<ControlName> asTyped;
};
// clang-format off
const Typed kTyped[] = {
    {"GS1/5", {"Txt_AdmRefID", "Txt_TrgAdmRefID", "Txt_PlanAdm_RefID", "Txt_4A_SiteName", "Combo_4B_Ctry", "Txt_4C_EW",
               "Txt_4C_NS", "Txt_12A_OpAgcy", "Txt_12B_AddrCde", "Txt_3A1_CallSign"}, {"Txt_EmailAddr", "Txt_notified_Rmks"}},
    {"GT1/5", {"Txt_AdmRefID", "Txt_TrgAdmRefID", "Txt_PlanAdm_RefID", "Txt_4A_SiteName", "Combo_4B_Ctry", "Txt_4C_EW",
               "Txt_4C_NS", "Txt_12A_OpAgcy", "Txt_12B_AddrCde", "Txt_3A1_CallSign"}, {"Txt_EmailAddr", "Txt_notified_Rmks"}},
    {"GS2",   {"Txt_AdmRefID", "Txt_TrgAdmRefID", "Txt_LMZ04_allot_name", "Txt_LMZ04_SfnID"}, {"Txt_EmailAddr", "Txt_notified_Rmks"}},
    {"GT2",   {"Txt_AdmRefID", "Txt_TrgAdmRefID", "Txt_LMZ04_allot_name", "Txt_LMZ04_SfnID"}, {"Txt_EmailAddr", "Txt_notified_Rmks"}},
    {"GA1",   {"Txt_LMZ04_NS", "Txt_LMZ04_EW", "Combo_4B_Ctry"}, {"Txt_notified_Rmks"}},
    {"TB5",   {"Txt_TrgAdmRefID"}, {"Txt_EmailAddr", "Txt_notified_Rmks"}},
    {"TB3",   {"Txt_TrgAdmRefID"}, {"Txt_EmailAddr", "Txt_notified_Rmks"}},
    {"TB2",   {"Txt_12A_OpAgcy", "Txt_12B_AddrCde", "Txt_PlanAdmRefID", "Txt_TrgAdmRefID", "Txt_4C_EW", "Txt_4C_NS"},
              {"Txt_EmailAddr", "Txt_notified_Rmks"}},
};
// clang-format on

class UpperCase : public RealForm {
 protected:
  // A letter that every field takes, and the field as it was again.
  static void typeLetter(Operator& hand, ControlName name, const std::string& letter,
                         const std::string& shown) {
    const std::string before = hand.text(name);
    hand.type(name, letter);
    EXPECT_EQ(hand.text(name), shown) << name;
    hand.typeHere(before);
  }
};

TEST_F(UpperCase, what_is_typed_is_upper_case_where_the_form_says_so) {
  for (const Typed& row : kTyped) {
    openNew(row.kind, [&](Operator& hand) {
      SCOPED_TRACE(row.kind);
      if (hand.window.findChild<QWidget*>("OptInt_Mod") != nullptr) hand.click("OptInt_Mod");
      for (const ControlName name : row.upper) typeLetter(hand, name, "b\351", "B\311");
      for (const ControlName name : row.asTyped) typeLetter(hand, name, "b\351", "b\351");
    });
  }
}

TEST_F(UpperCase, the_letters_of_a_target_and_the_ids_of_a_network_are_upper_case_too) {
  for (const char* kind : {"GS1/5", "GT1/5"}) {
    NtcRec ntc = makeKind(kind);
    ntc.t_plan_entry = "4";
    openNew(ntc, [&](Operator& hand) {
      hand.click("OptInt_Mod");
      for (const ControlName name : ControlNames{"Txt_trg_lat_NS", "Txt_trg_long_EW", "Txt_LMZ04_SfnID",
                                                 "Txt_LMZ04_AdmAllotID", "Txt_KV19_assoc_allot_sfnID"}) {
        typeLetter(hand, name, "b", "B");
      }
    });
  }
}

}  // namespace
}  // namespace zamo::test
