// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Round trips of random sites through the site file, in US and in metric units.
#include "panel_view.h"
#include "support/started_app.h"
#include "workbench/site_file.h"

#include "engine/site_description.h"
#include "site/site_properties.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>

namespace vesk {
namespace {

using test::shippedWithSettings;
using test::start;
using test::Started;
using test::TempProgramFolder;

// The settings a run starts with; the site is written and read in runs of
// the same settings.
struct RunSettings {
    bool gas;
    bool us;
    const char* list;
};

// What the user sees, but the valve boxes, which follow a read only for "None".
std::map<std::string, std::string> panelWithoutValves(const PanelState& panel) {
    std::map<std::string, std::string> state = test::panelState(panel);
    state.erase("chkBall");
    state.erase("chkSwing");
    return state;
}

// Random sites within the lists of the shipped catalogue. Lengths are texts of
// one decimal, as a field shows them after a read; in metric the tank diameter
// is the metric figure of a diameter in inches, because the file keeps inches
// to a tenth, which is coarser than a tenth of a centimetre.
class RandomSites {
  public:
    explicit RandomSites(std::uint32_t seed) : m_random(seed) {}

    RunSettings settings() {
        static constexpr const char* lists[] = {"A", "I", "C"};
        return {chance(2), chance(2), lists[between(0, 2)]};
    }

    void fill(ApplicationState& app, bool us) {
        PanelState& p = app.panel;
        ClickFrequencyOption(p, app.catalogues, app.config, chance(2));
        for (ComboList* list : {&p.cmbDispenser, &p.cmbBreakAway, &p.cmbHoseSize, &p.cmbNozzle, &p.cmbDispOthers,
                                &p.cmbPiping, &p.cmbBranch, &p.cmbTrunk, &p.cmbPipeSize, &p.cmbPumps, &p.cmbQuantity,
                                &p.cmbLeak, &p.cmbPumpOthers, &p.cmbNoOfBranches}) {
            if (list->ListCount() > 0) {
                list->SetListIndex(between(0, list->ListCount() - 1));
            }
        }
        p.txtHoseLen = tenths(0, 300);
        p.txtBranchLength = tenths(0, us ? 3000 : 1000);
        p.txtTrunkLength = tenths(0, us ? 3000 : 1000);
        p.txtPipeLen = tenths(0, us ? 3000 : 1000);
        p.txtBuryDepth = tenths(0, us ? 150 : 50);
        p.txtRise = tenths(0, us ? 300 : 100);
        p.txtTankDiameter = us ? tenths(300, 1500) : metricTankDiameter(tenths(300, 1500));
        for (std::string& fitting : p.txtBranchFitting) {
            fitting = std::to_string(between(0, 6));
        }
        for (std::string& fitting : p.txtTrunkFitting) {
            fitting = std::to_string(between(0, 6));
        }
        p.optBasic = chance(2);
        p.optAdvance = !p.optBasic;
        p.chkBall = static_cast<Integer>(between(0, 1));
        p.chkSwing = static_cast<Integer>(between(0, 1));
        p.txtNoOfNozzle = std::to_string(between(1, 40));
        CreateResultTables(app);
    }

    void fillProperties(clsSiteProperties& properties) {
        for (std::string* text :
             {&properties.strCustomerName, &properties.strCustomerContact, &properties.strSiteDescription,
              &properties.strAddress1, &properties.strAddress2, &properties.strGeneratedBy, &properties.strDate,
              &properties.strContact, &properties.strEmail, &properties.strPhone}) {
            *text = line();
        }
    }

  private:
    int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }
    bool chance(int oneIn) { return between(1, oneIn) == 1; }

    // The text of a number of tenths between `low` and `high`: "12.3", "40".
    std::string tenths(int low, int high) { return singleText(toSingle(between(low, high) / 10.0)); }

    // What a metric run shows for a tank diameter in inches.
    static std::string metricTankDiameter(const std::string& inches) {
        return singleText(toSingle(roundHalfEven(parseSingle(inches) * units::centimetresPerInch, 1)));
    }

    // A line of free text: printable characters of the code page, blanks
    // anywhere, or nothing at all.
    std::string line() {
        std::string text;
        const int length = chance(8) ? 0 : between(1, 40);
        for (int i = 0; i < length; ++i) {
            const int c = between(0x20, 0xFF);
            text += static_cast<char>(c >= 0x7F && c < 0xA0 ? ' ' : c);
        }
        return text;
    }

    std::mt19937 m_random;
};

TempProgramFolder folderFor(const RunSettings& settings) {
    return shippedWithSettings(
        {"40", "4", settings.gas ? "True" : "False", settings.us ? "True" : "False", settings.list});
}

void started(const TempProgramFolder& folder, Started& run) {
    start(folder, run);
    ASSERT_FALSE(run.ended);
    ASSERT_EQ(run.failure, "");
}

constexpr std::uint32_t seed = 20240611;
constexpr int sitesPerUnits = 25;

// A random site of a run, calculated and written, then read by a run of the
// same settings, gives the same panels. The valve boxes follow a read only
// for "None" (the grid writes its valve texts without blanks), so they come
// back cleared for a site without valves and as the reading run had them
// otherwise. The customer name goes to the class, the other nine properties
// to the boxes of the Site Properties dialog.
void expectRoundTrips(bool us) {
    RandomSites random(seed + (us ? 0 : 1));
    for (int i = 0; i < sitesPerUnits; ++i) {
        SCOPED_TRACE("site " + std::to_string(i));
        RunSettings settings = random.settings();
        settings.us = us;
        const TempProgramFolder folder = folderFor(settings);

        Started first;
        started(folder, first);
        random.fill(first.app, us);
        random.fillProperties(first.app.siteProperties);
        Calculate(first.app);
        const std::string path = (folder.path() / "SaveSiteInfo" / "roundtrip.txt").string();
        WriteSiteFile(first.app, path);

        Started second;
        started(folder, second);
        const Integer ballBefore = second.app.panel.chkBall;
        const Integer swingBefore = second.app.panel.chkSwing;
        ASSERT_TRUE(ReadSiteFile(second.app, path));

        EXPECT_EQ(panelWithoutValves(second.app.panel), panelWithoutValves(first.app.panel));
        const PanelState& written = first.app.panel;
        const bool noValve = written.chkBall == 0 && written.chkSwing == 0;
        EXPECT_EQ(second.app.panel.chkBall, noValve ? 0 : ballBefore);
        EXPECT_EQ(second.app.panel.chkSwing, noValve ? 0 : swingBefore);

        const clsSiteProperties& p = first.app.siteProperties;
        EXPECT_EQ(second.app.siteProperties.strCustomerName, p.strCustomerName);
        const SitePropertiesForm& dialog = second.app.frmSiteProperties;
        EXPECT_EQ((std::vector<std::string>(dialog.txtSiteInfo.begin() + 1, dialog.txtSiteInfo.end())),
                  (std::vector<std::string>{p.strCustomerContact, p.strSiteDescription, p.strAddress1, p.strAddress2}));
        EXPECT_EQ((std::vector<std::string>(dialog.txtReport.begin(), dialog.txtReport.end())),
                  (std::vector<std::string>{p.strGeneratedBy, p.strDate, p.strContact, p.strEmail, p.strPhone}));
    }
}

TEST(SiteRoundTrip, ARandomUsSiteWrittenThenReadGivesTheSamePanels) {
    expectRoundTrips(true);
}

TEST(SiteRoundTrip, ARandomMetricSiteWrittenThenReadGivesTheSamePanels) {
    expectRoundTrips(false);
}

} // namespace
} // namespace vesk
