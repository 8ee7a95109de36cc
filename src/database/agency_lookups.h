// Which operating agencies and address codes an administration has, as the master template knows them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "database/db_connection.h"

namespace zamo {

// The template is opened when the first question comes and stays open as long as this lives; what it holds
// for the administration asked last is kept. A template that is missing or broken throws a RunTimeError at
// the question.
class MasterAgencies {
 public:
  explicit MasterAgencies(std::string templatePath = masterTemplatePath());

  // Whether the administration has the code, without regard to case.
  bool isOpAgcyOfAdm(std::string_view adm, std::string_view opAgcy);
  bool isAddrCodeOfAdm(std::string_view adm, std::string_view addrCode);

 private:
  struct CodesOfAdm {
    bool known = false;
    std::string adm;
    std::vector<std::string> codes;
  };

  bool holds(CodesOfAdm& kept, std::string_view column, std::string_view adm, std::string_view code);

  std::string templatePath_;
  DbConnection connection_;
  CodesOfAdm opAgencies_;
  CodesOfAdm addrCodes_;
};

}  // namespace zamo
