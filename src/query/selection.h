// The statement that fetches what the user asked for on the query form.
#pragma once

#include <string>
#include <vector>

namespace zamo {

struct DateChoice {
  std::string day;
  std::string month;
  std::string year;
  bool after = false;
  bool prior = false;
  bool equal = false;
};

struct ListChoice {
  std::vector<std::string> values;
  bool all = false;  // every value there is was added, so nothing is filtered
};

// What stands on the form: texts as they were typed, a filter that is not wanted being empty or unticked.
struct QueryChoices {
  bool isNotice = true;  // assignments and allotments, not contours
  ListChoice adm;
  ListChoice ctry;
  bool GT1 = false;
  bool GT2 = false;
  bool GS1 = false;
  bool GS2 = false;
  std::string channelFreq;
  std::string erpFrom;
  std::string erpTo;
  bool definedByRpc = false;
  bool definedBySysVar = false;
  bool sfn = false;
  bool noSfn = false;
  std::string sfnId;
  std::string siteName;
  std::string remarks;
  DateChoice updated;
  std::string contourId;
};

struct Selection {
  std::string qrySelect;
  std::string qryWhere;
  std::string qrySql;
};

// Nothing is checked: a value that doesn't fit into a statement makes one that the engine refuses. With other
// filters than that of the types, a notice selection by contour id is such a statement.
Selection makeSelection(const QueryChoices& choices);

// The condition on d_updated. Empty when a part of the date is missing, or the comparison is none or all
// three.
std::string dateFilter(const DateChoice& choice);

// Whether the types leave only allotments, whose contours can be asked for.
inline bool wantsAllotmentsOnly(bool GT1, bool GT2, bool GS1, bool GS2) {
  return (GT2 || GS2) && !GT1 && !GS1;
}

}  // namespace zamo
