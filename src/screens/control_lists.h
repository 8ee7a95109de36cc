// The lists of the forms' combos, each beginning with the empty row that stands for "nothing chosen".
#pragma once

#include <string>
#include <vector>

namespace zamo {

using ItemList = std::vector<std::string>;

ItemList administrations();
ItemList countriesAndAreas();
ItemList dabCentreFrequencies();  // in MHz
ItemList systemVariants();

ItemList directivities();
ItemList polarizations();
ItemList allotmentPolarizations();
ItemList planEntries();
ItemList allotmentPlanEntries();
ItemList yesOrNo();
ItemList receptionModes();
ItemList referenceNetworks();

// Of sound and of television.
ItemList soundPlanning();
ItemList televisionPlanning();
ItemList soundMasks();
ItemList televisionMasks();
ItemList soundAssignmentCodes();
ItemList televisionAssignmentCodes();

}  // namespace zamo
