// The dialog for a range of azimuths, opened from the assignment forms, and what it writes into their grids.
#include <gmock/gmock.h>

#include "screens_window/real_form.h"

namespace zamo::test {
namespace {

struct Grid {
  ControlName button;
  const char* boxes;
  const char* caption;
  const char* valueLabel;
};
constexpr Grid kHeights = {"Button_Fill9EC", "Txt_9EC_azm",
                           "Fill in Effective Antenna Height for a Range of azimuths", "eff_hgt"};
constexpr Grid kHorizontal = {"Button_Fill9NH", "Txt_9NHAzm",
                              "Fill in e.r.p Attenuation for a Range of azimuths", "attn"};
constexpr Grid kVertical = {"Button_Fill9NV", "Txt_9NVAzm",
                            "Fill in e.r.p Attenuation for a Range of azimuths", "attn"};

const std::string kNoAzimuth =
    "Prevalidation Error - Fill Range: The azm must be between [0, 350] at 10\272 intervals";
const std::string kNoHeight =
    "Prevalidation Error - Eff. ant. height: Value must be an integer between [-3000, 3000] and less than "
    "the "
    "t_eff_hgtmax (9EB)";
const std::string kNoAttenuation =
    "Prevalidation Error - Attenuation :  : Value should be a numerical between [0.0 , 40.0]";

class FillFromForm : public RealForm {
 protected:
  // On both forms, with both diagrams in sight and 300 m as the greatest height.
  void onBoth(const std::function<void(Operator&)>& step) {
    for (const char* kind : {"GS1", "GT1"}) {
      SCOPED_TRACE(kind);
      openNew(kind, [&](Operator& hand) {
        hand.pick("Combo_9D_Polariz", "M");
        step(hand);
      });
    }
  }

  // Types into a field of the dialog and leaves it; gives whether it could be left.
  static bool enter(QDialog& dialog, const char* name, const char* value) {
    auto& field = childOf<QLineEdit>(dialog, name);
    QTest::mouseClick(&field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, value);
    QTest::keyClick(&field, Qt::Key_Tab);
    return dialog.focusWidget() != &field;
  }
  static void press(QDialog& dialog, const char* name) {
    QTest::mouseClick(&childOf<QPushButton>(dialog, name), Qt::LeftButton);
  }
  void fill(Operator& hand, const Grid& grid, const char* from, const char* to, const char* value) {
    dialogSteps.push_back([=](QDialog& dialog) {
      EXPECT_EQ(dialog.objectName(), "FillRangeFrm");
      EXPECT_EQ(toText(dialog.windowTitle()), grid.caption);
      EXPECT_EQ(toText(childOf<QLabel>(dialog, "LblValue").text()), grid.valueLabel);
      EXPECT_FALSE(childOf<QPushButton>(dialog, "Button_OK").isEnabled());
      EXPECT_TRUE(enter(dialog, "TxtFrom", from));
      EXPECT_TRUE(enter(dialog, "TxtTo", to));
      EXPECT_TRUE(enter(dialog, "TxtValue", value));
      EXPECT_TRUE(childOf<QPushButton>(dialog, "Button_OK").isEnabled());
      press(dialog, "Button_OK");
      EXPECT_FALSE(dialog.isVisible());
    });
    hand.click(grid.button);
  }
  static Texts gridOf(const Operator& hand, const Grid& grid) {
    Texts all;
    for (int azimuth = 0; azimuth < 360; azimuth += 10)
      all.push_back(hand.text(madeName(grid.boxes + std::to_string(1000 + azimuth).substr(1))));
    return all;
  }
};

TEST_F(FillFromForm, the_whole_range_writes_all_36_boxes_of_its_grid_alone) {
  onBoth([this](Operator& hand) {
    hand.turnTo("Button_Fill9EC");
    fill(hand, kHeights, "0", "350", "123");
    EXPECT_EQ(gridOf(hand, kHeights), Texts(36, "123"));
    const Texts horizontal = gridOf(hand, kHorizontal);
    EXPECT_EQ(horizontal[1], "3.5");
    fill(hand, kVertical, "0", "350", "40.0");
    EXPECT_EQ(gridOf(hand, kVertical), Texts(36, "40.0"));
    EXPECT_EQ(gridOf(hand, kHorizontal), horizontal);
    fill(hand, kHorizontal, "0", "350", "0");
    EXPECT_EQ(gridOf(hand, kHorizontal), Texts(36, "0"));
  });
  expectTold({});
}

TEST_F(FillFromForm, a_part_of_the_range_leaves_the_rest) {
  onBoth([this](Operator& hand) {
    fill(hand, kHeights, "340", "350", "-7");
    Texts expected(36, "250");
    expected[34] = expected[35] = "-7";
    EXPECT_EQ(gridOf(hand, kHeights), expected);
    fill(hand, kHeights, "90", "90", "1");
    expected[9] = "1";
    EXPECT_EQ(gridOf(hand, kHeights), expected);
  });
  expectTold({});
}

TEST_F(FillFromForm, cancel_writes_nothing) {
  const char* const ways[] = {"Button_Cancel", "frame"};
  onBoth([&](Operator& hand) {
    const Contents before = hand.contents();
    for (const char* way : ways) {
      dialogSteps.push_back([way](QDialog& dialog) {
        EXPECT_TRUE(enter(dialog, "TxtFrom", "0"));
        EXPECT_TRUE(enter(dialog, "TxtTo", "350"));
        EXPECT_TRUE(enter(dialog, "TxtValue", "7"));
        if (std::string(way) == "frame") {
          dialog.close();
        } else {
          press(dialog, way);
        }
        EXPECT_FALSE(dialog.isVisible());
      });
      hand.click("Button_Fill9EC");
      EXPECT_EQ(hand.contents(), before) << way;
    }
  });
  expectTold({});
}

TEST_F(FillFromForm, azimuths_that_are_none_and_a_range_that_ends_first_are_told) {
  onBoth([this](Operator& hand) {
    dialogSteps.push_back([this](QDialog& dialog) {
      EXPECT_FALSE(enter(dialog, "TxtFrom", "15"));
      expectTold({kNoAzimuth});
      EXPECT_FALSE(enter(dialog, "TxtFrom", "360"));
      expectTold({kNoAzimuth});
      EXPECT_TRUE(enter(dialog, "TxtFrom", "350"));
      EXPECT_FALSE(enter(dialog, "TxtTo", "0"));
      expectTold({"Prevalidation Error - Fill Range: Invalid range, azm:FROM is greater than azm:TO"});
      press(dialog, "Button_Cancel");
      EXPECT_FALSE(dialog.isVisible());
    });
    hand.click("Button_Fill9NH");
    expectTold({});
  });
}

TEST_F(FillFromForm, attenuations_end_at_40) {
  onBoth([this](Operator& hand) {
    for (const ControlName button : ControlNames{"Button_Fill9NH", "Button_Fill9NV"}) {
      dialogSteps.push_back([this](QDialog& dialog) {
        for (const char* wrong : {"40.1", "-0.1", "x"}) {
          EXPECT_FALSE(enter(dialog, "TxtValue", wrong)) << wrong;
          expectTold({kNoAttenuation});
        }
        EXPECT_TRUE(enter(dialog, "TxtValue", "40.0"));
        EXPECT_TRUE(enter(dialog, "TxtValue", "0.0"));
        expectTold({});
      });
      hand.click(button);
    }
  });
}

TEST_F(FillFromForm, heights_end_at_that_of_9EB_as_it_stands_on_the_form) {
  onBoth([this](Operator& hand) {
    hand.enter("Txt_9EB_Eff_hgtmax", "120");
    dialogSteps.push_back([this](QDialog& dialog) {
      for (const char* wrong : {"121", "-3001", "1.5"}) {
        EXPECT_FALSE(enter(dialog, "TxtValue", wrong)) << wrong;
        expectTold({kNoHeight});
      }
      EXPECT_TRUE(enter(dialog, "TxtValue", "120"));
      EXPECT_TRUE(enter(dialog, "TxtValue", "-3000"));
    });
    hand.click("Button_Fill9EC");
    hand.enter("Txt_9EB_Eff_hgtmax", "");
    dialogSteps.push_back([this](QDialog& dialog) {
      EXPECT_FALSE(enter(dialog, "TxtValue", "1"));
      expectTold({kNoHeight});
      EXPECT_TRUE(enter(dialog, "TxtValue", "0"));
    });
    hand.click("Button_Fill9EC");
    expectTold({});
  });
}

TEST_F(FillFromForm, what_is_filled_in_is_saved) {
  const std::int32_t key = openNew("GT1", [this](Operator& hand) {
    fill(hand, kHeights, "10", "20", "99");
    script.answers = {true};
    hand.click("Button_Next");
  });
  expectTold({"Save Notice: The notice was sucessfully updated in the Database"},
             {"Save Notice: Saving changes will update the Database. Do you want to proceed?"});
  const NtcRec after = stored(key);
  EXPECT_EQ(after.ant_hgt[0].value, "250");
  EXPECT_EQ(after.ant_hgt[1].value, "99");
  EXPECT_EQ(after.ant_hgt[2].value, "99");
  EXPECT_EQ(after.ant_hgt[3].value, "250");
}

}  // namespace
}  // namespace zamo::test
