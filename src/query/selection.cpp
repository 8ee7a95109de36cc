#include "query/selection.h"

#include <initializer_list>
#include <string_view>

#include "platform/numbers.h"

namespace zamo {
namespace {

enum class NoticeSelect { mixed, assignments, allotments };

// --- the select parts

constexpr std::string_view kNoticeHead =
    "SELECT DISTINCT fmtv_vorna.vornakey AS VornaKey, fmtv_vorna.adm AS Adm,"
    " fmtv_vorna.adm_ref_id AS AdmRefID, fmtv_vorna.notice_typ AS NtcTyp,";

constexpr std::string_view kPosition =
    " fmtv_vorna.long_deg & '\260 ' & long_min & '\264 ' & long_sec & '\264\264 ' & long_ew AS Longitude,"
    " fmtv_vorna.lat_deg & '\260 ' & lat_min & '\264 ' & lat_sec & '\264\264 ' & lat_ns AS Latitude,";

constexpr std::string_view kMixedTail =
    " fmtv_vorna.freq_assgn AS Freq, fmtv_vorna.site_name AS Sitename,"
    " lmz_allotment.allot_name AS Allotname, fmtv_vorna.intent AS Intent, lmz_allotment.allotkey"
    " FROM (fmtv_rmks RIGHT JOIN fmtv_vorna ON fmtv_rmks.vornakey = fmtv_vorna.vornakey)"
    " LEFT JOIN lmz_allotment ON fmtv_vorna.vornakey = lmz_allotment.vornakey";

constexpr std::string_view kAssignmentsTail =
    " fmtv_vorna.freq_assgn AS Freq, "
    " fmtv_vorna.site_name AS Sitename,"
    " fmtv_vorna.intent AS Intent FROM fmtv_vorna LEFT JOIN fmtv_rmks ON"
    " fmtv_vorna.vornakey = fmtv_rmks.vornakey ";

constexpr std::string_view kAllotmentsTail =
    " fmtv_vorna.freq_assgn AS Freq, lmz_allotment.allot_name AS Allotname,"
    " fmtv_vorna.intent AS Intent, lmz_contour.contour_id AS ContourID"
    " FROM (fmtv_rmks RIGHT JOIN fmtv_vorna ON fmtv_rmks.vornakey = fmtv_vorna.vornakey)"
    " LEFT JOIN (lmz_allotment LEFT JOIN (lmz_sub_area LEFT JOIN lmz_contour ON"
    " lmz_sub_area.contourkey = lmz_contour.contourkey) ON lmz_allotment.allotkey = lmz_sub_area.allotkey)"
    " ON fmtv_vorna.vornakey = lmz_allotment.vornakey";

// The join leaves out the contours that were never notified.
constexpr std::string_view kContourSelect =
    "SELECT DISTINCT lmz_contour.contourkey AS ContourKey , lmz_contour.contour_id AS ContourID,"
    " lmz_contour.ctry AS Country, lmz_contour.adm AS Adm, lmz_contour.nb_test_pts AS NbTestPts"
    " FROM lmz_contour INNER JOIN lmz_contour_pt ON lmz_contour.contourkey = lmz_contour_pt.contourkey";

std::string joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text += part;
  return text;
}

std::string noticeSelect(NoticeSelect select) {
  switch (select) {
    case NoticeSelect::assignments:
      return joined({kNoticeHead, kPosition, kAssignmentsTail});
    case NoticeSelect::allotments:
      return joined({kNoticeHead, kAllotmentsTail});
    case NoticeSelect::mixed:
      break;
  }
  return joined({kNoticeHead, kPosition, kMixedTail});
}

// --- the filters, each empty when it isn't asked for

std::string listFilter(const ListChoice& choice, std::string_view column) {
  if (choice.all || choice.values.empty()) return {};
  std::string text = "(";
  for (const std::string& value : choice.values)
    text += joined({text.size() > 1 ? " OR (" : "(", column, " = '", value, "')"});
  return text + ")";
}

std::string typeFilter(const QueryChoices& choices) {
  struct TypeRow {
    bool QueryChoices::*ticked;
    std::string_view filter;  // with the type's old name
  };
  // clang-format off
  static constexpr TypeRow kTypes[] = {
      {&QueryChoices::GT1, "(notice_typ = 'GT1') OR (notice_typ = 'DT1')"},
      {&QueryChoices::GT2, "(notice_typ = 'GT2') OR (notice_typ = 'DT2')"},
      {&QueryChoices::GS1, "(notice_typ = 'GS1') OR (notice_typ = 'DS1')"},
      {&QueryChoices::GS2, "(notice_typ = 'GS2') OR (notice_typ = 'DS2')"},
  };
  // clang-format on
  std::string text;
  bool allTicked = true;
  for (const TypeRow& row : kTypes) {
    allTicked = allTicked && choices.*row.ticked;
    if (choices.*row.ticked) text += joined({text.empty() ? "" : " OR ", row.filter});
  }
  return text.empty() || allTicked ? std::string() : "(" + text + ")";
}

std::string asNumber(std::string_view text) {
  return numberText(leadingNumber(text));
}

std::string frequencyFilter(const QueryChoices& choices) {
  if (choices.channelFreq.empty()) return {};
  return joined({"(", "freq_assgn = '", asNumber(choices.channelFreq), "'", ")"});
}

std::string planConfigurationFilter(const QueryChoices& choices) {
  if (choices.definedByRpc == choices.definedBySysVar) return {};
  return choices.definedByRpc ? "(ref_plan_cfg is Not NULL)" : "(ref_plan_cfg is NULL)";
}

// One value alone is the value itself and no bound.
std::string erpFilter(const QueryChoices& choices) {
  const std::string& from = choices.erpFrom;
  const std::string& to = choices.erpTo;
  if (from.empty() && to.empty()) return {};
  if (from.empty() || to.empty()) {
    const std::string& value = from.empty() ? to : from;
    return joined({"((erp_v_dbw = ", value, ") OR (erp_h_dbw = ", value, "))"});
  }
  return joined({"((erp_v_dbw >= ", from, " AND erp_v_dbw <= ", to, ") OR ", " (erp_h_dbw >= ", from,
                 " AND erp_h_dbw <= ", to, "))"});
}

std::string siteNameFilter(const QueryChoices& choices, NoticeSelect select) {
  const std::string& name = choices.siteName;
  if (name.empty()) return {};
  if (select == NoticeSelect::assignments) return joined({"(site_name = '", name, "') "});
  if (select == NoticeSelect::allotments) return joined({"(allot_name = '", name, "')"});
  return joined({"((site_name = '", name, "') OR ", "(allot_name = '", name, "'))"});
}

std::string sfnFilter(const QueryChoices& choices) {
  if (choices.sfn == choices.noSfn) return {};
  if (choices.noSfn) return "(sfn_id is Null)";
  return choices.sfnId.empty() ? "(sfn_id is NOT Null)" : joined({"(sfn_id = '", choices.sfnId, "')"});
}

std::string contourIdFilter(const QueryChoices& choices) {
  return choices.contourId.empty() ? std::string()
                                   : "lmz_contour.contour_id = " + asNumber(choices.contourId);
}

std::string remarksFilter(const QueryChoices& choices) {
  return choices.remarks.empty() ? std::string()
                                 : joined({" fmtv_rmks.rmk_text LIKE '%", choices.remarks, "%' "});
}

// --- the statements

void addFilter(std::string& filters, std::string_view filter) {
  if (!filter.empty()) filters += joined({filters.empty() ? "" : " AND ", filter});
}

NoticeSelect selectFor(const QueryChoices& choices, bool typesAreFiltered) {
  if (!typesAreFiltered) return NoticeSelect::mixed;
  if (!choices.GT2 && !choices.GS2) return NoticeSelect::assignments;
  return wantsAllotmentsOnly(choices.GT1, choices.GT2, choices.GS1, choices.GS2) ? NoticeSelect::allotments
                                                                                 : NoticeSelect::mixed;
}

void fillNoticeSelection(Selection& selection, const QueryChoices& choices) {
  const std::string types = typeFilter(choices);
  const NoticeSelect select = selectFor(choices, !types.empty());
  selection.qrySelect = noticeSelect(select);
  selection.qryWhere = types;
  std::string others;
  addFilter(others, listFilter(choices.adm, "fmtv_vorna.adm"));
  addFilter(others, listFilter(choices.ctry, "fmtv_vorna.ctry"));
  addFilter(others, erpFilter(choices));
  addFilter(others, frequencyFilter(choices));
  addFilter(others, planConfigurationFilter(choices));
  addFilter(others, siteNameFilter(choices, select));
  addFilter(others, sfnFilter(choices));
  addFilter(others, dateFilter(choices.updated));
  // Required: the AND that belongs between goes behind the types, and the engine refuses such a statement.
  const std::string contourId = contourIdFilter(choices);
  if (!contourId.empty() && !others.empty()) selection.qryWhere += " AND ";
  others += contourId;
  addFilter(others, remarksFilter(choices));
  addFilter(selection.qryWhere, others);
}

void fillContourSelection(Selection& selection, const QueryChoices& choices) {
  selection.qrySelect = kContourSelect;
  addFilter(selection.qryWhere, listFilter(choices.adm, "lmz_contour.adm"));
  addFilter(selection.qryWhere, listFilter(choices.ctry, "lmz_contour.ctry"));
  addFilter(selection.qryWhere, contourIdFilter(choices));
}

}  // namespace

std::string dateFilter(const DateChoice& choice) {
  if (choice.day.empty() || choice.month.empty() || choice.year.empty()) return {};
  if (choice.after && choice.prior && choice.equal) return {};
  std::string_view begin;
  if (choice.after) {
    begin = choice.equal ? "(d_updated >= #" : "(d_updated > #";
  } else if (choice.prior) {
    begin = choice.equal ? "(d_updated <= #" : "(d_updated < #";
  } else if (choice.equal) {
    begin = "(d_updated = #";
  } else {
    return {};
  }
  return joined({begin, choice.month, "/", choice.day, "/", choice.year, "#)"});
}

Selection makeSelection(const QueryChoices& choices) {
  Selection selection;
  std::string_view order = " ORDER by fmtv_vorna.vornakey";
  if (choices.isNotice) {
    fillNoticeSelection(selection, choices);
  } else {
    fillContourSelection(selection, choices);
    order = " ORDER by lmz_contour.contourkey";
  }
  selection.qrySql = selection.qrySelect;
  if (!selection.qryWhere.empty()) selection.qrySql += joined({" WHERE ", selection.qryWhere, order});
  return selection;
}

}  // namespace zamo
