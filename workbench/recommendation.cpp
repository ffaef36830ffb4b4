// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The recommendation feature that stands inert on the four areas: its texts, its focus flags and its two lists.
#include "workbench/recommendation.h"

#include "engine/numeric.h"

namespace vesk {

namespace {

using F = RecommendationFamily;

constexpr std::string_view yields = " yields";

} // namespace

const std::array<RecommendationText, 43> recommendationTexts{{
    // a best choice
    {F::BestChoice, "This is the best Pump"},
    {F::BestChoice, "This is the best Nozzle"},
    {F::BestChoice, "This is the best LeakDetector"},
    {F::BestChoice, "The best Branch Size already selected"},
    {F::BestChoice, "The best combination is selcted, no Recommendation is available for the selected option."},
    {F::BestChoice, "No Recommendation is avaialble for the selected Hose Size."},
    // an alternative's gain
    {F::AlternativeGain, " yields "},
    {F::AlternativeGain, "% increase in Flow"},
    // more pumps
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Please select two pump in the "
                   "Pump Quantity combo box."},
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps.Please select two pump in the "
                   "Pump Quantity combo box."},
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Please select two pump in the "
                   "Pump Quantity compb box."},
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Please select three pumps in the "
                   "Pump Quantity combo box."},
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps.Please select three pumps in the "
                   "Pump Quantity combo box."},
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Please select three pumps in the "
                   "Pump Quantity compb box."},
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Please select four pumps in the "
                   "Pump Quantity combo box."},
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps.Please select four pumps in the "
                   "Pump Quantity combo box."},
    {F::MorePumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Please select four pumps in the "
                   "Pump Quantity compb box."},
    // fewer pumps: from two, three, four to one, two, three, in two wordings
    {F::FewerPumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Two Pumps are selected, it can "
                    "be reduced to one pump in Pump Quantity combo box."},
    {F::FewerPumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Three Pumps are selected, it "
                    "can be reduced to one pump in Pump Quantity combo box."},
    {F::FewerPumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Three Pumps are selected, it "
                    "can be reduced to two pumps in Pump Quantity combo box."},
    {F::FewerPumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Four Pumps are selected, it can "
                    "be reduced to one pump in Pump Quantity combo box."},
    {F::FewerPumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Four Pumps are selected, it can "
                    "be reduced to two pumps in Pump Quantity combo box."},
    {F::FewerPumps, "Nozzle flow rates can be improved by manifolding multiple pumps. Four Pumps are selected, it can "
                    "be reduced to three pumps in Pump Quantity combo box."},
    {F::FewerPumps, "The same flow can be reached with fewer pumps. Two Pumps are selected, please select one pump in "
                    "Pump Quantity combo box."},
    {F::FewerPumps, "The same flow can be reached with fewer pumps. Three Pumps are selected, please select one pump "
                    "in Pump Quantity combo box."},
    {F::FewerPumps, "The same flow can be reached with fewer pumps. Three Pumps are selected, please select two pumps "
                    "in Pump Quantity combo box."},
    {F::FewerPumps, "The same flow can be reached with fewer pumps. Four Pumps are selected, please select one pump "
                    "in Pump Quantity combo box."},
    {F::FewerPumps, "The same flow can be reached with fewer pumps. Four Pumps are selected, please select two pumps "
                    "in Pump Quantity combo box."},
    {F::FewerPumps, "The same flow can be reached with fewer pumps. Four Pumps are selected, please select three "
                    "pumps in Pump Quantity combo box."},
    // nozzles per pump
    {F::NozzlesPerPump,
     "If the number of nozzles desired is more than 5 and only one pump is chosen, or if there are more than 4 nozzles "
     "per pump, Nozzle flow rates can be improved by manifolding multiple pumps. If there are more than 4 nozzles per "
     "pump in the system, you may consider adding one pump to the piping system. Please select four pumps in Pump "
     "Quantity combo box."},
    {F::NozzlesPerPump,
     "If the number of nozzles desired is more than 5 and only one pump is chosen, or if there are more than 4 nozzles "
     "per pump, Nozzle flow rates can be improved by manifolding multiple pumps. If there are more than 4 nozzles per "
     "pump in the system, you may consider adding one pump to the piping system. Please select three pumps in Pump "
     "Quantity combo box."},
    {F::NozzlesPerPump,
     "If the number of nozzles desired is more than 4 and only one pump is chosen, or if there are more than 4 nozzles "
     "per pump, Nozzle flow rates can be improved by manifolding multiple pumps. If there are more than 4 nozzles per "
     "pump in the system, you may consider adding one pump to the piping system. Please select two pumps in Pump "
     "Quantity combo box."},
    // nozzles per branch
    {F::NozzlesPerBranch,
     "If there are more than 8 nozzles on one branch in the station layout, Decreasing the number of nozzles on one "
     "branch will decrease the piping head loss with multiple nozzles operating.  Branching the piping system if it "
     "is not already, or adding a branch to a system that is already branched can do this."},
    {F::NozzlesPerBranch,
     "If there are more than 16 nozzles on two branches in the station layout, Decreasing the number of nozzles on one "
     "branch will decrease the piping head loss with multiple nozzles operating.  Branching the piping system if it "
     "is not already, or adding a branch to a system that is already branched can do this."},
    {F::NozzlesPerBranch,
     "If there are more than 24 nozzles on three branches in the station layout, Decreasing the number of nozzles on "
     "one branch will decrease the piping head loss with multiple nozzles operating.  Branching the piping system if "
     "it is not already, or adding a branch to a system that is already branched can do this."},
    // pipe size
    {F::PipeSize, "Increasing the pipe diameter of the piping will reduce the piping head loss.Increase the piping to "
                  "the next diameter size. 3 inch piping is the largest piping to be recommended."},
    {F::PipeSize, "Increasing the pipe diameter of the piping trunk will reduce the piping head loss.Increase the "
                  "piping trunk to the next diameter size. 3 inch piping is the largest piping to be recommended."},
    // fittings: the pieces in front of and behind the number
    {F::Fittings, "The total trunk fitting head loss is "},
    {F::Fittings, "The total branch fitting head loss is "},
    {F::Fittings,
     " ft. Flow may be improved by reducing the number of fittings. Review the piping configuration to see if "
     "fittings can be eliminated. Increasing the piping size may also decrease the head loss and improve flow. To "
     "calculate the flow with the next size piping and fittings enter calculate.Increase the fitting and piping size "
     "to the next diameter. The maximum diameter will be 3-inch diameter. Increase the piping to the next diameter "
     "size."},
    {F::Fittings,
     " mt. Flow may be improved by reducing the number of fittings. Review the piping configuration to see if "
     "fittings can be eliminated. Increasing the piping size may also decrease the head loss and improve flow. To "
     "calculate the flow with the next size piping and fittings enter calculate.Increase the fitting and piping size "
     "to the next diameter. The maximum diameter will be 3-inch diameter. Increase the piping to the next diameter "
     "size."},
    // hose size
    {F::HoseSize, "Increasing the diameter of the hose will increase the flow rate per nozzle.The hose diameter is "
                  "then increased one size, from 5/8 to 3/4, from 3/4 to 1. 1 is the limit for recommending gas "
                  "dispensing hose size."},
    {F::HoseSize, "Increasing the diameter of the hose will increase the flow rate per nozzle.The hose diameter is "
                  "then increased one size, from 1 to 1 1/4 and 1 1/4 to 1 1/2. 1 1/2 is the limit for recommending "
                  "diesel dispensing hose size"},
}};

namespace {

struct FocusFlag {
    std::string_view control;
    bool RecommendationFocus::*flag;
};

// The controls whose focus is recorded, area by area.
constexpr std::array<FocusFlag, 6> pumpAreaFlags{{
    {"cmbPumps", &RecommendationFocus::pumps},
    {"cmbQuantity", &RecommendationFocus::quantity},
    {"opt50Hz", &RecommendationFocus::frequency50Hz},
    {"opt60Hz", &RecommendationFocus::frequency60Hz},
    {"cmbLeak", &RecommendationFocus::leak},
    {"cmbPumpOthers", &RecommendationFocus::pumpOthers},
}};
constexpr std::array<FocusFlag, 2> dispensingAreaFlags{{
    {"cmbNozzle", &RecommendationFocus::nozzle},
    {"cmbHoseSize", &RecommendationFocus::hoseSize},
}};
constexpr std::array<FocusFlag, 13> pipingAreaFlags{{
    {"cmbPiping", &RecommendationFocus::piping},
    {"cmbTrunk", &RecommendationFocus::trunkSize},
    {"txtTrunkLength", &RecommendationFocus::trunkLength},
    {"txtTrunkFitting(0)", &RecommendationFocus::trunkFittings},
    {"txtTrunkFitting(1)", &RecommendationFocus::trunkFittings},
    {"txtTrunkFitting(2)", &RecommendationFocus::trunkFittings},
    {"txtTrunkFitting(3)", &RecommendationFocus::trunkFittings},
    {"cmbBranch", &RecommendationFocus::branchSize},
    {"txtBranchLength", &RecommendationFocus::branchLength},
    {"txtBranchFitting(0)", &RecommendationFocus::branchFittings},
    {"txtBranchFitting(1)", &RecommendationFocus::branchFittings},
    {"txtBranchFitting(2)", &RecommendationFocus::branchFittings},
    {"txtBranchFitting(3)", &RecommendationFocus::branchFittings},
}};

template <std::size_t N>
bool recordIn(const std::array<FocusFlag, N>& area, std::string_view control, RecommendationFocus& focus) {
    const FocusFlag* entered = nullptr;
    for (const FocusFlag& entry : area) {
        if (entry.control == control) {
            entered = &entry;
        }
    }
    if (entered == nullptr) {
        return false;
    }
    for (const FocusFlag& entry : area) {
        focus.*entry.flag = false;
    }
    focus.*entered->flag = true;
    return true;
}

// The text up to " yields": Left(text, InStr(text, " yields") - 1).
std::string nameBeforeYields(const std::string& entryText) {
    const std::size_t at = entryText.find(yields);
    const long length = at == std::string::npos ? -1 : static_cast<long>(at);
    if (length < 0) {
        fail(failure::invalidCall);
    }
    return entryText.substr(0, static_cast<std::size_t>(length));
}

} // namespace

void RecordRecommendationFocus(std::string_view control, RecommendationFocus& focus) {
    recordIn(pumpAreaFlags, control, focus) || recordIn(dispensingAreaFlags, control, focus) ||
        recordIn(pipingAreaFlags, control, focus);
}

std::string RecommendationListToolTip(const std::string& entryText) {
    return entryText;
}

void DoubleClickDispensingList(const std::string& entryText, PanelState& panel) {
    panel.cmbNozzle.SetText(nameBeforeYields(entryText));
}

bool DoubleClickPumpList(const std::string& entryText, PanelState& panel, const RecommendationFocus& focus) {
    if (focus.pumpRecommended) {
        panel.cmbPumps.SetText(nameBeforeYields(entryText));
        return true;
    }
    if (focus.leakRecommended) {
        panel.cmbLeak.SetText(nameBeforeYields(entryText));
        return true;
    }
    return false;
}

} // namespace vesk
