#include "screens/control_lists.h"

#include <initializer_list>
#include <span>
#include <string_view>

#include "platform/numbers.h"
#include "validation/ref_data.h"

namespace zamo {

namespace {

ItemList choices(std::initializer_list<std::string_view> items) {
  ItemList list = {""};
  list.insert(list.end(), items.begin(), items.end());
  return list;
}

// A table's codes without its unused places.
ItemList codes(std::span<const std::string_view> table) {
  ItemList list = {""};
  for (const std::string_view code : table) {
    if (!code.empty()) list.emplace_back(code);
  }
  return list;
}

}  // namespace

ItemList administrations() {
  return codes(kv19Administrations);
}

ItemList countriesAndAreas() {
  return codes(kv19GeoAreas);
}

ItemList dabCentreFrequencies() {
  ItemList list = {""};
  for (const double frequency : dabFrequencies) list.push_back(numberText(frequency));
  return list;
}

ItemList systemVariants() {
  ItemList list = {""};
  for (const char letter : std::string_view("ABCDEF")) {
    for (const char digit : std::string_view("12357")) list.push_back({letter, digit});
  }
  return list;
}

// clang-format off
ItemList directivities()             { return choices({"D", "ND"}); }
ItemList polarizations()             { return choices({"H", "V", "M"}); }
ItemList allotmentPolarizations()    { return choices({"H", "V", "M", "U"}); }
ItemList planEntries()               { return choices({"1", "2", "3", "4", "5"}); }
ItemList allotmentPlanEntries()      { return choices({"3", "4", "5"}); }
ItemList yesOrNo()                   { return choices({"TRUE", "FALSE"}); }
ItemList receptionModes()            { return choices({"FX", "PO", "PI", "MO"}); }
ItemList referenceNetworks()         { return choices({"RN1", "RN2", "RN3", "RN4"}); }
ItemList soundPlanning()             { return choices({"RPC4", "RPC5"}); }
ItemList televisionPlanning()        { return choices({"RPC1", "RPC2", "RPC3"}); }
ItemList soundMasks()                { return choices({"1", "2", "3"}); }
ItemList televisionMasks()           { return choices({"N", "S"}); }
ItemList soundAssignmentCodes()      { return choices({"S", "L", "C"}); }
ItemList televisionAssignmentCodes() { return choices({"L", "C", "S"}); }
// clang-format on

}  // namespace zamo
