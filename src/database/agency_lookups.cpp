#include "database/agency_lookups.h"

#include <algorithm>
#include <utility>

#include "database/dialect.h"
#include "database/recordset.h"
#include "platform/text.h"

namespace zamo {

MasterAgencies::MasterAgencies(std::string templatePath) : templatePath_(std::move(templatePath)) {}

bool MasterAgencies::isOpAgcyOfAdm(std::string_view adm, std::string_view opAgcy) {
  return holds(opAgencies_, "op_agcy", adm, opAgcy);
}

bool MasterAgencies::isAddrCodeOfAdm(std::string_view adm, std::string_view addrCode) {
  return holds(addrCodes_, "addr_code", adm, addrCode);
}

bool MasterAgencies::holds(CodesOfAdm& kept, std::string_view column, std::string_view adm,
                           std::string_view code) {
  if (!kept.known || kept.adm != adm) {
    if (connection_ == nullptr) connection_ = std::make_unique<Connection>(templatePath_);
    // Table and column have one name.
    std::string sql("Select ");
    sql.append(column)
        .append(" From ")
        .append(column)
        .append(" WHERE adm = '")
        .append(joinedText(adm))
        .append("'");
    std::vector<std::string> codes;
    for (Recordset rows(sql, *connection_); !rows.atEnd(); rows.MoveNext())
      codes.push_back(rows.value(0).value_or(""));
    kept = {true, std::string(adm), std::move(codes)};
  }
  return std::any_of(kept.codes.begin(), kept.codes.end(),
                     [code](const std::string& one) { return equalsIgnoringCase(one, code); });
}

}  // namespace zamo
