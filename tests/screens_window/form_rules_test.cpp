// Which controls of the forms are in sight, what a save asks for, and what passes between screen and record,
// in the windows.
#include <gmock/gmock.h>

#include "database/raw_database.h"
#include "model/ntc_reset.h"
#include "screens/screen_mapping.h"
#include "screens_window/real_form.h"

namespace zamo::test {
namespace {

const std::string kUpdated = "Save Notice: The notice was sucessfully updated in the Database";
const std::string kAskUpdate =
    "Save Notice: Saving changes will update the Database. Do you want to proceed?";

// The full list with these lines, as the question shows it.
std::string saveInvalid(const std::string& lines) {
  return "Save Invalid Notice: The following fields are either missing or invalid\r\n" + lines +
         "\r\nSave invalid Notice";
}

class FormRules : public RealForm {
 protected:
  NtcRec read(const Operator& hand) const {
    NtcRec ntc;
    resetNtc(ntc);
    readForm(ntc, hand.form.screen, host);
    return ntc;
  }
};

// --- what is in sight

struct AntennaCase {
  const char* antDir;
  const char* polariz;
  bool h;
  bool v;
};
constexpr AntennaCase kAntennaCases[] = {
    {"ND", "H", false, false}, {"ND", "V", false, false}, {"ND", "M", false, false}, {"ND", "", false, false},
    {"D", "H", true, false},   {"D", "V", false, true},   {"D", "M", true, true},    {"D", "", true, true},
    {"", "H", true, true},     {"", "V", true, true},     {"", "M", true, true},     {"", "", true, true},
};

TEST_F(FormRules, directivity_and_polarization_tell_which_attenuations_and_powers_there_are) {
  for (const char* kind : {"GS1", "GT1"}) {
    openNew(kind, [](Operator& hand) {
      for (const AntennaCase& row : kAntennaCases) {
        SCOPED_TRACE(std::string(row.antDir) + " " + row.polariz);
        hand.pick("Combo_9_AntDir", row.antDir);
        hand.pick("Combo_9D_Polariz", row.polariz);
        for (const ControlName name : ControlNames{"Frame_9NH_AttnH", "Button_Fill9NH"})
          EXPECT_EQ(hand.sees(name), row.h) << name;
        for (const ControlName name : ControlNames{"Frame_9NV_AttnV", "Button_Fill9NV"})
          EXPECT_EQ(hand.sees(name), row.v) << name;
        EXPECT_EQ(hand.sees("Txt_9NHAzm000"), row.h);
        EXPECT_EQ(hand.sees("Txt_9NVAzm000"), row.v);
        const std::string polariz = row.polariz;
        for (const ControlName name : ControlNames{"Txt_8BH_Erp_H", "Lbl_8BH_Erp_H"})
          EXPECT_EQ(hand.sees(name), polariz != "V");
        for (const ControlName name : ControlNames{"Txt_8BV_Erp_V", "Lbl_8BV_Erp_V"})
          EXPECT_EQ(hand.sees(name), polariz != "H");
      }
    });
  }
}

struct PlanCase {
  const char* planEntry;
  bool sfnId;
  bool allotSfnId;
  bool allotId;
};
constexpr PlanCase kPlanCases[] = {
    {"", true, true, true},  {"1", false, false, false}, {"2", true, false, false},
    {"3", true, true, true}, {"4", true, true, true},    {"5", false, false, true},
};

TEST_F(FormRules, the_plan_entry_tells_which_identifiers_there_are_and_clears_the_others) {
  struct Identifier {
    ControlName box;
    ControlName label;
    bool PlanCase::*shown;
  };
  constexpr Identifier identifiers[] = {
      {"Txt_LMZ04_SfnID", "Lbl_LMZ04_SfnID", &PlanCase::sfnId},
      {"Txt_KV19_assoc_allot_sfnID", "Lbl_KV19_assoc_allot_sfnID", &PlanCase::allotSfnId},
      {"Txt_LMZ04_AdmAllotID", "Lbl_LMZ04_AdmAllotID", &PlanCase::allotId},
  };
  for (const char* kind : {"GS1", "GT1"}) {
    openNew(kind, [&](Operator& hand) {
      for (const PlanCase& row : kPlanCases) {
        SCOPED_TRACE(row.planEntry);
        hand.pick("Combo_KV19_Plan", "4");
        for (const Identifier& one : identifiers) hand.type(one.box, "ABC");
        hand.pick("Combo_KV19_Plan", row.planEntry);
        for (const Identifier& one : identifiers) {
          EXPECT_EQ(hand.sees(one.box), row.*one.shown) << one.box;
          EXPECT_EQ(hand.sees(one.label), row.*one.shown) << one.label;
          EXPECT_EQ(hand.text(one.box), row.*one.shown ? "ABC" : "") << one.box;
        }
      }
    });
  }
}

TEST_F(FormRules, an_article_shows_its_own_frame) {
  for (const char* kind : {"GS1", "GT1"}) {
    openNew(kind, [](Operator& hand) {
      EXPECT_TRUE(hand.sees("Frame_Art4_Only"));
      EXPECT_FALSE(hand.sees("Frame_ART5_Only"));
      hand.click("Opt_Art5");
      EXPECT_FALSE(hand.sees("Frame_Art4_Only"));
      EXPECT_TRUE(hand.sees("Frame_ART5_Only"));
      EXPECT_TRUE(hand.sees("Txt_12A_OpAgcy"));
      hand.click("Opt_Art4");
      EXPECT_FALSE(hand.sees("Txt_12A_OpAgcy"));
      EXPECT_TRUE(hand.sees("Combo_KV19_PubReq"));
    });
  }
}

TEST_F(FormRules, a_modification_under_article_4_names_the_notice_itself) {
  for (const char* kind : {"GS1", "GT1"}) {
    openNew(kind, [](Operator& hand) {
      hand.click("OptInt_Mod");
      EXPECT_TRUE(hand.sees("FrameTrg"));
      EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), "F-0001");
      for (const ControlName name :
           ControlNames{"Txt_trg_freq_assgn", "Txt_trg_long_DD", "Txt_trg_lat_NS", "Lbl_trg_or"})
        EXPECT_FALSE(hand.sees(name)) << name;
      hand.click("OptInt_Add");
      EXPECT_FALSE(hand.sees("FrameTrg"));
      EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), "");
    });
  }
}

TEST_F(FormRules, a_television_system_and_a_planning_configuration_exclude_each_other) {
  const std::vector<ControlName> system = {"Combo_LMZ04_Sys_Var", "Lbl_LMZ04_DigSys", "Combo_LMZ04_RxMode",
                                           "Lbl_LMZ04_RxMode"};
  const std::vector<ControlName> planning = {"Combo_LMZ04_RefPlan", "Lbl_LMZ04_RefPlan"};
  openNew("GT1", [&](Operator& hand) {
    const auto expectSeen = [&](const std::vector<ControlName>& names, bool seen) {
      for (const ControlName name : names) EXPECT_EQ(hand.sees(name), seen) << name;
      EXPECT_FALSE(hand.sees("LblOr"));
    };
    expectSeen(system, false);
    expectSeen(planning, true);
    hand.pick("Combo_LMZ04_RefPlan", "");
    expectSeen(system, true);
    expectSeen(planning, true);
    hand.pick("Combo_LMZ04_Sys_Var", "C2");
    expectSeen(system, true);
    expectSeen(planning, false);
    hand.pick("Combo_LMZ04_RxMode", "FX");
    hand.pick("Combo_LMZ04_Sys_Var", "");
    expectSeen(planning, false);
    hand.pick("Combo_LMZ04_RxMode", "");
    expectSeen(system, true);
    expectSeen(planning, true);
    hand.pick("Combo_LMZ04_RefPlan", "RPC2");
    expectSeen(system, false);
  });
}

// --- what a save asks for

TEST_F(FormRules, a_diagram_whose_zero_is_written_0_0_is_not_normalized) {
  const std::pair<const char*, const char*> cases[] = {
      {"GS1", "<ANT_DIAGR_H> : has to be normalized\r\n(9NH)\r\n"},
      {"GT1", "<ANT_DIAGR_H> : has to be normalized\r\n(9NH)\r\n"},
  };
  for (const auto& [kind, line] : cases) {
    openNew(kind, [&, words = line](Operator& hand) {
      hand.enter("Txt_9NHAzm000", "0.0");
      hand.click("Button_Next");
      expectTold({}, {saveInvalid(words)});
      hand.enter("Txt_9NHAzm350", "0");
      hand.click("Button_Next");
      expectTold({}, {kAskUpdate});
    });
  }
}

TEST_F(FormRules, the_vertical_diagram_is_told_in_the_forms_own_words) {
  const std::pair<const char*, const char*> cases[] = {
      {"GS1", "<ANT_DIAGR_V> : has to be normalized\r\n(9NV)\r\n"},
      {"GT1", "<ANT_DIAGR_V> : has to be normalized\r\n (9NV)\r\n"},
  };
  for (const auto& [kind, line] : cases) {
    NtcRec ntc = makeKind(kind);
    ntc.t_polar = "V";
    ntc.t_erp_v_dbw = "43";
    ntc.ant_diagr_v = makeDiagram();
    openNew(ntc, [&, words = line](Operator& hand) {
      hand.enter("Txt_9NVAzm000", "0.0");
      hand.click("Button_Next");
      expectTold({}, {saveInvalid(words)});
    });
  }
}

TEST_F(FormRules, of_a_non_directional_antenna_no_diagram_is_asked) {
  for (const char* kind : {"GS1", "GT1"}) {
    openNew(kind, [&](Operator& hand) {
      for (const ControlName box : ControlNames{"Txt_9NHAzm000", "Txt_9NHAzm100"}) hand.enter(box, "");
      hand.click("Button_Next");
      ASSERT_EQ(script.questions.size(), 1U);
      EXPECT_THAT(script.questions[0].text, testing::HasSubstr("<ANT_DIAGR_H>"));
      script.questions.clear();
      hand.pick("Combo_9_AntDir", "ND");
      hand.click("Button_Next");
      expectTold({}, {kAskUpdate});
    });
  }
}

TEST_F(FormRules, without_a_polarization_no_power_is_asked) {
  for (const char* kind : {"GS1", "GT1"}) {
    openNew(kind, [&](Operator& hand) {
      hand.enter("Txt_8BH_Erp_H", "");
      hand.pick("Combo_9D_Polariz", "");
      hand.click("Button_Next");
      expectTold({}, {saveInvalid("Polarization : t_polar (9D)\r\n")});
    });
  }
}

TEST_F(FormRules, a_sound_assignment_without_a_site_name_cannot_be_saved) {
  const std::int32_t key = openNew("GS1", [this](Operator& hand) {
    hand.enter("Txt_4A_SiteName", "");
    hand.enter("Txt_9E_AntHgt", "");
    hand.click("Button_Next");
    EXPECT_EQ(script.boxes.at(0).buttons, BoxButtons::cancelTryContinue);
    expectTold(
        {"Cannot save the notice: To save a notice at least the following Mandatory Identifying fields are "
         "necessary : \r\nName of the location of the transmitting station : t_sitename (4A)\r\n"});
    EXPECT_TRUE(hand.window.isVisible());
  });
  EXPECT_EQ(stored(key).t_site_name, "BOURGES");
  EXPECT_FALSE(work.state.ntcListChanged);
}

TEST_F(FormRules, a_sound_assignment_without_an_antenna_height_can_be_saved_by_who_wants_it) {
  const std::int32_t key = openNew("GS1", [this](Operator& hand) {
    hand.enter("Txt_9E_AntHgt", "");
    hand.click("Button_Next");
    expectTold({}, {saveInvalid("Height antenna : t_hgt_agl (9E)\r\n")});
    EXPECT_FALSE(work.state.ntcListChanged);
    script.answers = {true, true, true};
    hand.click("Button_Next");
    ASSERT_EQ(script.questions.size(), 3U);
    EXPECT_EQ(hand.text("Txt_9E_AntHgt"), "");
  });
  expectBoxes({kUpdated});
  EXPECT_EQ(stored(key).t_hgt_agl, "");
}

TEST_F(FormRules, what_identifies_a_notice_is_told_in_the_words_of_each_form) {
  struct Case {
    const char* kind;
    ControlName field;
    const char* told;
  };
  const Case cases[] = {
      {"GT1", "Txt_4A_SiteName",
       "To save a notice the following Mandatory fields are necessary : \r\nName of the location of the "
       "transmitting station : t_sitename (4A)\r\n"},
      {"GS2", "Txt_LMZ04_allot_name",
       "To save a notice the following Mandatory fields are necessary : \r\nDigital broadcasting allotment "
       "name : "
       "t_allot_name\r\n"},
      {"GT2", "Txt_LMZ04_allot_name",
       "To save a notice the following Mandatory fields are necessary : \r\nDigital broadcasting allotment "
       "name : "
       "t_allot_name\r\n"},
      {"GA1", "Txt_LMZ04_nb_test_pts",
       "To save a notice the following Mandatory fields are necessary : \r\nNumber of boundary test points : "
       "t_nb_test_pts\r\n"},
  };
  for (const Case& row : cases) {
    openNew(row.kind, [&](Operator& hand) {
      hand.enter(row.field, "");
      hand.click("Button_Next");
      expectTold({std::string("Cannot save the notice: ") + row.told});
    });
  }
}

// --- between screen and record

TEST_F(FormRules, a_recorded_notice_is_called_so_and_updated_as_a_modification) {
  for (const char* kind : {"GS1", "GT1", "GS2", "GT2"}) {
    NtcRec ntc = makeKind(kind);
    ntc.t_action = "RECORDED";
    const std::int32_t key = openNew(ntc, [&](Operator& hand) {
      EXPECT_EQ(hand.caption("OptInt_Add"), "RECORDED");
      EXPECT_TRUE(hand.isSet("OptInt_Add"));
      EXPECT_FALSE(hand.isSet("OptInt_Mod"));
      script.answers = {true, true, true};
      hand.click("Button_Next");
      EXPECT_TRUE(hand.isSet("OptInt_Mod"));
      EXPECT_FALSE(hand.isSet("OptInt_Add"));
      EXPECT_EQ(hand.caption("OptInt_Add"), "ADD");
    });
    expectBoxes({kUpdated});
    script.boxes.clear();
    EXPECT_EQ(stored(key).t_action, "MODIFY");
  }
}

TEST_F(FormRules, a_date_shows_without_zeros_and_is_read_so) {
  for (const char* kind : {"GS1/5", "GT1/5"}) {
    NtcRec ntc = makeKind(kind);
    ntc.t_d_inuse = "2009-05-03";
    const std::int32_t key = openNew(ntc, [&](Operator& hand) {
      EXPECT_EQ(hand.text("Txt_InUse_DD"), "3");
      EXPECT_EQ(hand.text("Txt_InUse_MM"), "5");
      EXPECT_EQ(hand.text("Txt_InUse_YY"), "2009");
      EXPECT_EQ(read(hand).t_d_inuse, "2009-5-3");
      script.answers = {true, true, true};
      hand.click("Button_Next");
      EXPECT_EQ(hand.text("Txt_InUse_DD"), "3");
      hand.enter("Txt_InUse_MM", "");
      EXPECT_EQ(read(hand).t_d_inuse, "");
    });
    EXPECT_EQ(stored(key).t_d_inuse, "2009-05-03");
  }
}

TEST_F(FormRules, the_commitment_shows_and_becomes_the_answer_about_the_remarks) {
  for (const char* kind : {"GS1/5", "GT1/5"}) {
    NtcRec ntc = makeKind(kind);
    ntc.t_remark_conds_met = "TRUE";
    ntc.t_signed_commitment = "FALSE";
    const std::int32_t key = openNew(ntc, [&](Operator& hand) {
      EXPECT_EQ(hand.text("Combo_KV19_Rmk_Cond"), "TRUE");
      EXPECT_EQ(hand.text("Combo_KV19_SigComit"), "TRUE");
      script.answers = {true, true, true};
      hand.click("Button_Next");
    });
    EXPECT_EQ(stored(key).t_signed_commitment, "TRUE");
  }
}

TEST_F(FormRules, the_attenuations_of_a_non_directional_antenna_are_neither_filled_nor_read) {
  for (const char* kind : {"GS1", "GT1"}) {
    const std::int32_t key = add(kind);
    RawDatabase(run.DbFileName)
        .run("UPDATE fmtv_vorna SET ant_dir = 'ND' WHERE vornakey = " + std::to_string(key));
    open(run.NtcCount - 1, [&](Operator& hand) {
      EXPECT_EQ(hand.text("Combo_9_AntDir"), "ND");
      for (const char* azimuth : {"000", "010", "350"}) {
        EXPECT_EQ(hand.text(madeName(std::string("Txt_9NHAzm") + azimuth)), "");
        EXPECT_EQ(hand.text(madeName(std::string("Txt_9EC_azm") + azimuth)), "250");
      }
      hand.pick("Combo_9_AntDir", "D");
      hand.enter("Txt_9NHAzm010", "3");
      EXPECT_TRUE(read(hand).ant_diagr_h[1].present);
      hand.pick("Combo_9_AntDir", "ND");
      EXPECT_FALSE(read(hand).ant_diagr_h[1].present);
      EXPECT_TRUE(read(hand).ant_hgt[1].present);
    });
  }
}

TEST_F(FormRules, the_target_of_an_addition_is_not_read) {
  for (const char* kind : {"GS1/5", "GT1/5"}) {
    const std::int32_t key = openNew(kind, [&](Operator& hand) {
      hand.click("OptInt_Mod");
      struct Typed {
        ControlName box;
        const char* value;
      };
      constexpr Typed target[] = {
          {"Txt_trg_freq_assgn", "474"}, {"Txt_trg_long_DD", "2"}, {"Txt_trg_long_MM", "7"},
          {"Txt_trg_long_SS", "9"},      {"Txt_trg_long_EW", "E"}, {"Txt_trg_lat_DD", "7"},
          {"Txt_trg_lat_MM", "6"},       {"Txt_trg_lat_SS", "5"},  {"Txt_trg_lat_NS", "N"}};
      for (const auto& [box, value] : target) hand.enter(box, value);
      const NtcRec modified = read(hand);
      EXPECT_EQ(modified.t_trg_freq_assgn, "474");
      EXPECT_EQ(modified.trg_long_deg, "002");
      EXPECT_EQ(modified.trg_long_min, "07");
      EXPECT_EQ(modified.trg_lat_deg, "07");
      hand.click("OptInt_Add");
      const NtcRec added = read(hand);
      EXPECT_EQ(added.t_trg_freq_assgn, "");
      EXPECT_EQ(added.trg_long_deg, "");
      EXPECT_EQ(added.trg_lat_ns, "");
      script.answers = {true, true, true};
      hand.click("Button_Next");
    });
    EXPECT_EQ(stored(key).t_trg_freq_assgn, "");
    EXPECT_EQ(stored(key).t_action, "ADD");
  }
}

TEST_F(FormRules, coordinates_get_their_zeros_in_the_record_and_on_the_screen_after_an_update) {
  for (const char* kind : {"GS1", "GT1"}) {
    openNew(kind, [&](Operator& hand) {
      hand.enter("Txt_4C_Deg_Long", "5");
      hand.enter("Txt_4C_Min_Long", "7");
      hand.enter("Txt_4C_Sec_Lat", "9");
      EXPECT_EQ(hand.text("Txt_4C_Deg_Long"), "5");
      const NtcRec ntc = read(hand);
      EXPECT_EQ(ntc.long_deg, "005");
      EXPECT_EQ(ntc.long_min, "07");
      EXPECT_EQ(ntc.lat_sec, "09");
      script.answers = {true, true, true};
      hand.click("Button_Next");
      EXPECT_EQ(hand.text("Txt_4C_Deg_Long"), "005");
      EXPECT_EQ(hand.text("Txt_4C_Min_Long"), "07");
    });
  }
}

TEST_F(FormRules, a_target_by_its_place_shows_its_place_alone) {
  for (const char* kind : {"GS1/5", "GT1/5"}) {
    NtcRec ntc = makeKind(kind);
    ntc.t_action = "MODIFY";
    ntc.t_trg_freq_assgn = "474";
    ntc.trg_long_deg = "002";
    ntc.trg_long_min = "24";
    ntc.trg_long_sec = "10";
    ntc.trg_long_ew = "E";
    ntc.trg_lat_deg = "47";
    ntc.trg_lat_min = "05";
    ntc.trg_lat_sec = "30";
    ntc.trg_lat_ns = "N";
    openNew(ntc, [](Operator& hand) {
      EXPECT_TRUE(hand.sees("Txt_trg_freq_assgn"));
      EXPECT_TRUE(hand.sees("Txt_trg_lat_NS"));
      EXPECT_EQ(hand.text("Txt_trg_freq_assgn"), "474");
      EXPECT_FALSE(hand.sees("Txt_TrgAdmRefID"));
      EXPECT_FALSE(hand.sees("Lbl_trg_or"));
    });
    ntc = makeKind(kind);
    ntc.t_action = "MODIFY";
    ntc.t_trg_adm_ref_id = "F-9";
    openNew(ntc, [](Operator& hand) {
      EXPECT_EQ(hand.text("Txt_TrgAdmRefID"), "F-9");
      EXPECT_TRUE(hand.sees("Txt_TrgAdmRefID"));
      EXPECT_FALSE(hand.sees("Txt_trg_freq_assgn"));
      EXPECT_FALSE(hand.sees("Txt_trg_lat_NS"));
      EXPECT_FALSE(hand.sees("Lbl_trg_or"));
    });
  }
}

}  // namespace
}  // namespace zamo::test
