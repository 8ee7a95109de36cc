// What all forms have in common for the operator's hand.
#include <gmock/gmock.h>

#include <set>

#include "database/notice_store.h"
#include "screens_window/real_form.h"

namespace zamo::test {
namespace {

class EveryForm : public RealForm, public testing::WithParamInterface<const char*> {
 protected:
  // Goes on with Tab until the focus comes to where it was before.
  static std::set<std::string> walkThrough(Operator& hand) {
    std::set<std::string> visited = {hand.focused()};
    for (hand.tab(); visited.insert(hand.focused()).second; hand.tab()) {
    }
    return visited;
  }

  static std::set<std::string> usableFields(const Operator& hand) {
    std::set<std::string> names;
    hand.form.screen.forEach([&](const Control& known) {
      const QWidget& widget = hand.control(madeName(known.name));
      const bool isField = known.kind == ControlKind::text || known.kind == ControlKind::combo ||
                           known.kind == ControlKind::memo || known.kind == ControlKind::list;
      if (isField && widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) != 0)
        names.insert(known.name);
    });
    return names;
  }

  void walkEveryPage(Operator& hand) {
    const auto* const pages = hand.window.findChild<QTabWidget*>("Pages");
    const int count = pages == nullptr ? 1 : pages->count();
    for (int page = 0; page < count; ++page) {
      if (pages != nullptr) {
        QTest::mouseClick(pages->tabBar(), Qt::LeftButton, {}, pages->tabBar()->tabRect(page).center());
        QCoreApplication::processEvents();
        EXPECT_EQ(pages->currentIndex(), page);
      }
      const std::set<std::string> usable = usableFields(hand);
      EXPECT_FALSE(usable.empty());
      const std::set<std::string> visited = walkThrough(hand);
      for (const std::string& name : usable)
        EXPECT_TRUE(visited.contains(name)) << name << " on page " << page;
    }
  }
};

INSTANTIATE_TEST_SUITE_P(Kinds, EveryForm,
                         testing::Values("GS1", "GT1", "GS1/5", "GT1/5", "GS2", "GT2", "GA1", "TB5", "TB3",
                                         "TB2"),
                         [](const auto& chosen) {
                           std::string name = chosen.param;
                           std::replace(name.begin(), name.end(), '/', '_');
                           return name;
                         });

TEST_P(EveryForm, tab_goes_through_all_fields_of_a_valid_notice_without_a_word_or_a_change) {
  openNew(makeFullNotice(GetParam()), [&](Operator& hand) {
    const Contents before = hand.contents();
    walkEveryPage(hand);
    EXPECT_EQ(hand.contents(), before);
    EXPECT_TRUE(hand.window.isVisible());
  });
  expectTold({});
  EXPECT_EQ(shown.size(), 1U);
}

TEST_P(EveryForm, every_field_of_a_valid_notice_can_be_clicked_without_a_word_or_a_change) {
  openNew(makeFullNotice(GetParam()), [&](Operator& hand) {
    const Contents before = hand.contents();
    hand.form.screen.forEach([&](const Control& known) {
      if ((known.kind != ControlKind::text && known.kind != ControlKind::memo) ||
          !hand.canUse(madeName(known.name)))
        return;
      hand.click(madeName(known.name));
      EXPECT_TRUE(hand.focused() == known.name || known.name == "Txt_LMZ04_nb_sub_areas" ||
                  hand.focused() == "Txt_LMZ04_contour_id" || hand.focused() == "Txt_LMZ04_Deg_Long")
          << known.name << " but " << hand.focused();
    });
    EXPECT_EQ(hand.contents(), before);
  });
  expectTold({});
}

TEST_P(EveryForm, close_asks_nothing_and_saves_nothing) {
  const NtcRec ntc = makeKind(GetParam());
  const bool isContour = ntc.t_notice_type == "GA1";
  const std::int32_t key = openNew(ntc, [](Operator& hand) {
    hand.type("Txt_notified_Rmks", "edited");
    hand.click("Button_Reset");
    EXPECT_FALSE(hand.window.isVisible());
  });
  expectTold({});
  EXPECT_EQ((isContour ? storedContour(key) : stored(key)).t_remarks, "");
  EXPECT_FALSE(work.state.ntcListChanged);
}

TEST_P(EveryForm, a_notice_that_is_alone_has_no_neighbours) {
  openNew(GetParam(), [](Operator& hand) {
    for (const ControlName button :
         ControlNames{"Button_Next", "Button_AddNew", "Button_Finish", "Button_Reset", "Button_Validate"})
      EXPECT_TRUE(hand.canUse(button)) << button;
    for (const ControlName button : ControlNames{"Button_Next_Ntc", "Button_Prev_Ntc"}) {
      EXPECT_TRUE(hand.sees(button)) << button;
      EXPECT_FALSE(hand.canUse(button)) << button;
    }
  });
}

TEST_P(EveryForm, internal_remarks_are_in_sight_when_there_are_some) {
  NtcRec ntc = makeKind(GetParam());
  if (ntc.t_notice_type == "GA1") return;
  openNew(ntc, [](Operator& hand) {
    EXPECT_FALSE(hand.sees("txt_int_rmk"));
    EXPECT_FALSE(hand.sees("Lbl_int_rmk"));
  });
  ntc.t_int_remarks = "inside";
  openNew(ntc, [](Operator& hand) {
    EXPECT_TRUE(hand.sees("txt_int_rmk"));
    EXPECT_TRUE(hand.sees("Lbl_int_rmk"));
    EXPECT_EQ(hand.text("txt_int_rmk"), "inside");
  });
}

TEST_P(EveryForm, too_few_fields_are_refused_by_the_three_buttons) {
  openNew(GetParam(), [&](Operator& hand) {
    for (const ControlName name :
         ControlNames{"Txt_4C_Deg_Long", "Txt_4C_Min_Long", "Txt_4C_Sec_Long", "Txt_4C_Deg_Lat",
                      "Txt_4C_Min_Lat", "Txt_4C_Sec_Lat", "Txt_AdmRefID", "Txt_TrgAdmRefID",
                      "Txt_PlanAdmRefID", "Txt_LMZ04_contour_id"}) {
      if (hand.form.screen.has(name) && hand.canUse(name)) hand.enter(name, "");
    }
    for (const ControlName button : ControlNames{"Button_Validate", "Button_Next", "Button_AddNew"}) {
      hand.click(button);
      expectTold({"Missing values: Not enough fields to validate"});
    }
  });
  EXPECT_FALSE(work.state.ntcListChanged);
}

}  // namespace
}  // namespace zamo::test
