// The fields that a notice of another type may not carry, each with its words, which stand here alone. The
// tables of the rule groups name them in the order of their report.
#pragma once

#include "validation/rule_report.h"

namespace zamo {

namespace absent {

// clang-format off
inline constexpr AbsentRow allot_name = {once<isGivenInAllot<&AllotRec::t_allot_name>>, " : t_allot_name should not be notified for a "};
inline constexpr AbsentRow geo_area = {once<isGivenInAllot<&AllotRec::t_geo_area>>, " : t_geo_area should not be notified for a "};
inline constexpr AbsentRow nb_sub_areas = {once<isGivenInAllot<&AllotRec::t_nb_sub_areas>>, " : t_nb_sub_areas should not be notified for a "};
inline constexpr AbsentRow contour_ids = {countGivenContourIds, " : t_contour_id should not be notified for a "};
inline constexpr AbsentRow nb_test_pts = {once<isGivenInContour<&ContourRec::t_nb_test_pts>>, " : t_nb_test_pts should not be notified for a "};
inline constexpr AbsentRow test_points = {countPointsPresent, " : t_long and t_lat should not be notified for a "};
inline constexpr AbsentRow notified_test_points = {countNotifiedPointsPresent, " : t_long and t_lat should not be notified for a "};
inline constexpr AbsentRow contour_id = {once<isGivenInContour<&ContourRec::t_contour_id>>, " : t_contour_id should not be notified for a "};
inline constexpr AbsentRow sys_var = {once<isGiven<&NtcRec::t_sys_var>>, " : t_sys_var should not be notified for a "};
inline constexpr AbsentRow rx_mode = {once<isGivenInDigital<&DigitalRec::t_rx_mode>>, " : t_rx_mode should not be notified for a "};
inline constexpr AbsentRow erp_beam_tilt_dbw = {once<isGiven<&NtcRec::t_erp_beam_tilt_dbw>>, " : t_erp_beam_tilt_dbw should not be notified for a "};
inline constexpr AbsentRow beam_tilt_angle = {once<isGiven<&NtcRec::t_beam_tilt_angle>>, " : t_beam_tilt_angle should not be notified for a "};
inline constexpr AbsentRow site_name = {once<isGiven<&NtcRec::t_site_name>>, " : t_site_name should not be notified for a "};
inline constexpr AbsentRow site_alt = {once<isGiven<&NtcRec::t_site_alt>>, " : t_site_alt should not be notified for a "};
inline constexpr AbsentRow position = {once<hasPosition>, " : t_long t_lat should not be notified for a "};
inline constexpr AbsentRow erp_h_dbw = {once<isGiven<&NtcRec::t_erp_h_dbw>>, " : t_erp_h_dbw should not be notified for a "};
inline constexpr AbsentRow erp_v_dbw = {once<isGiven<&NtcRec::t_erp_v_dbw>>, " : t_erp_v_dbw should not be notified for a "};
inline constexpr AbsentRow eff_hgtmax = {once<isGiven<&NtcRec::t_eff_hgtmax>>, " : t_eff_hgtmax should not be notified for a "};
inline constexpr AbsentRow hgt_agl = {once<isGiven<&NtcRec::t_hgt_agl>>, " : t_hgt_agl should not be notified for a "};
inline constexpr AbsentRow ant_diagr_h = {once<hasAntDiagrH>, " : <ANT_DIAGR_H> should not be notified for a "};
inline constexpr AbsentRow ant_diagr_v = {once<hasAntDiagrV>, " : <ANT_DIAGR_V> should not be notified for a "};
inline constexpr AbsentRow ant_hgt = {once<hasAntHgt>, " : <ANT_HGT> should not be notified for a "};
inline constexpr AbsentRow associated_adm_allot_id = {once<isGivenInDigital<&DigitalRec::t_associated_adm_allot_id>>, " : t_associated_adm_allot_id should not be notified for a "};
inline constexpr AbsentRow associated_allot_sfn_id = {once<isGivenInDigital<&DigitalRec::t_associated_allot_sfn_id>>, " : t_associated_allot_sfn_id should not be notified for a "};
inline constexpr AbsentRow assgn_code = {once<isGiven<&NtcRec::t_assgn_code>>, " : t_assgn_code should not be notified for a "};
inline constexpr AbsentRow op_agcy = {once<isGiven<&NtcRec::t_op_agcy>>, " : t_op_agcy should not be notified for a "};
inline constexpr AbsentRow d_inuse = {once<isGiven<&NtcRec::t_d_inuse>>, " : t_d_inuse should not be notified for a "};
inline constexpr AbsentRow addr_code = {once<isGiven<&NtcRec::t_addr_code>>, " : t_addr_code should not be notified for a "};
inline constexpr AbsentRow op_hh_fr = {once<isGiven<&NtcRec::op_hours, &OpHoursRec::t_op_hh_fr>>, " : t_op_hh_fr should not be notified for a "};
inline constexpr AbsentRow op_hh_to = {once<isGiven<&NtcRec::op_hours, &OpHoursRec::t_op_hh_to>>, " : t_op_hh_to should not be notified for a "};
inline constexpr AbsentRow remark_conds_met = {once<isGiven<&NtcRec::t_remark_conds_met>>, " : t_remarks_conds_met should not be notified for a "};
inline constexpr AbsentRow is_resub = {once<isGiven<&NtcRec::t_is_resub>>, " : t_is_resub should not be notified for a "};
inline constexpr AbsentRow signed_commitment = {once<isGiven<&NtcRec::t_signed_commitment>>, " : t_signed_commitment should not be notified for a "};
inline constexpr AbsentRow coord = {once<hasCoord>, " : <COORD> or <COORDINATION> should not be notified for a "};
inline constexpr AbsentRow freq_assgn = {once<isGiven<&NtcRec::t_freq_assgn>>, " : t_freq_assgn should not be notified for a "};
inline constexpr AbsentRow typ_ref_netwk = {once<isGivenInAllot<&AllotRec::t_typ_ref_netwk>>, " : t_typ_ref_netwk should not be notified for a "};
inline constexpr AbsentRow adm_ref_id = {once<isGiven<&NtcRec::t_adm_ref_id>>, " : t_adm_ref_id should not be notified for a "};
inline constexpr AbsentRow is_pub_req = {once<isGiven<&NtcRec::t_is_pub_req>>, " : t_is_pub_req should not be notified for a "};
inline constexpr AbsentRow sfn_id = {once<isGivenInDigital<&DigitalRec::t_sfn_id>>, " : t_sfn_id should not be notified for a "};
// clang-format on

}  // namespace absent
}  // namespace zamo
