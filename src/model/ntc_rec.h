// The one form of a notice in memory, whatever its type and wherever it came from.
// Nearly all fields are texts named by their file keys; an empty text means that the value wasn't notified.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace zamo {

inline constexpr std::size_t kAzimuths = 36;
inline constexpr std::size_t kAllotContourIds = 10;
inline constexpr std::size_t kBufferedContourIds = 9;
inline constexpr std::size_t kCoordSlots = 122;
inline constexpr std::size_t kCoordSlotsTested = 121;

// Times as four digits, HHMM.
struct OpHoursRec {
  bool present = false;
  std::string t_op_hh_fr;
  std::string t_op_hh_to;
  bool operator==(const OpHoursRec&) const = default;
};

struct AzmValueRec {
  bool present = false;
  std::string azm;
  std::string value;
  bool operator==(const AzmValueRec&) const = default;
};

struct PointRec {
  bool present = false;
  std::string t_long;
  std::string t_lat;
  bool operator==(const PointRec&) const = default;
};

struct AllotRec {
  bool present = false;
  std::string t_allot_name;
  std::string t_geo_area;
  std::string t_nb_sub_areas;
  std::string t_typ_ref_netwk;
  std::array<std::string, kAllotContourIds> t_contour_id;
  bool operator==(const AllotRec&) const = default;
};

struct ContourRec {
  bool present = false;
  std::string t_contour_id;
  std::string t_nb_test_pts;
  std::vector<PointRec> points = std::vector<PointRec>(2);
  std::string d_updated;
  std::string d_recog;
  bool operator==(const ContourRec&) const = default;
};

struct CoordEntryRec {
  std::string adm;
  std::string coord_prov;
  std::string coord_st;
  std::string src_status;
  std::string d_coord_st;
  std::string decl_affct;
  bool operator==(const CoordEntryRec&) const = default;
};

struct CoordListRec {
  std::int32_t count = 0;
  bool present = false;
  std::vector<CoordEntryRec> entries = std::vector<CoordEntryRec>(1);
  bool operator==(const CoordListRec&) const = default;
};

struct DigitalRec {
  bool present = false;
  std::string t_email_addr;
  std::string t_rx_mode;
  std::string t_ref_plan_cfg;
  std::string t_sfn_id;
  std::string t_associated_adm_allot_id;
  std::string t_associated_allot_sfn_id;
  std::string t_spect_mask;
  AllotRec allot;
  ContourRec contour;
  bool operator==(const DigitalRec&) const = default;
};

struct NtcRec {
  std::int16_t ScrCode = 0;
  std::int32_t vornakey = 0;
  std::string t_action;
  std::string t_fragment;
  std::string t_plan;
  std::string t_prov;
  std::string assgn_id;
  std::string t_adm_ref_id;
  std::string t_trg_adm_ref_id;
  std::string t_plan_adm_ref_id;
  std::string t_notice_type;
  std::string stn_cls;
  std::string t_sys_var;
  std::string t_adm;
  std::string t_ctry;
  std::string t_is_resub;
  std::string t_is_pub_req;
  std::string t_call_sign;
  std::string t_plan_entry;
  std::string t_assgn_code;
  std::string t_offset;
  std::string t_remark_conds_met;
  std::string t_signed_commitment;
  std::string t_erp_beam_tilt_dbw;
  std::string t_beam_tilt_angle;
  std::string stn_id;
  std::string t_addr_code;
  std::string t_op_agcy;
  std::string d_adm_ntc;
  std::string t_d_expiry;
  std::string t_d_inuse;
  std::string d_rcv;
  std::string t_freq_assgn;
  std::string t_trg_freq_assgn;
  std::string t_hgt_agl;
  std::string t_eff_hgtmax;
  std::string t_erp_h_dbw;
  std::string t_erp_v_dbw;
  std::string t_polar;
  std::string t_ant_dir;
  std::string spare;
  std::string t_site_name;
  std::string long_deg;
  std::string long_ew;
  std::string long_min;
  std::string long_sec;
  std::string lat_deg;
  std::string lat_ns;
  std::string lat_min;
  std::string lat_sec;
  std::string trg_long_deg;
  std::string trg_long_ew;
  std::string trg_long_min;
  std::string trg_long_sec;
  std::string trg_lat_deg;
  std::string trg_lat_ns;
  std::string trg_lat_min;
  std::string trg_lat_sec;
  std::string t_site_alt;
  std::string src_update;
  std::string d_updated;
  std::string d_recog;
  OpHoursRec op_hours;
  std::int32_t trg_key = 0;
  std::string kept_spare;
  std::array<AzmValueRec, kAzimuths> ant_diagr_v;
  std::array<AzmValueRec, kAzimuths> ant_diagr_h;
  std::array<AzmValueRec, kAzimuths> ant_hgt;
  DigitalRec digital;
  CoordListRec coord;
  std::string t_remarks;
  std::string t_int_remarks;
  std::array<std::string, 5> last_spares;
  bool operator==(const NtcRec&) const = default;
};

// The number of entries of the allotment's contour identifiers that aren't empty.
int countContourIds(const AllotRec& allot);

}  // namespace zamo
