// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// An application started on a copy of the shipped program folder, for the tests of the reports.
#pragma once

#include "support/started_app.h"
#include "workbench/field_checks.h"
#include "workbench/site_file.h"

#include <gtest/gtest.h>

namespace vesk::test {

class ReportTest : public ::testing::Test {
  protected:
    void SetUp() override {
        start(folder, started);
        ASSERT_FALSE(started.ended);
        ASSERT_EQ(started.failure, "");
    }
    ApplicationState& app() { return started.app; }
    RecordingInteraction& ui() { return started.ui; }

    // The number of nozzles typed and left: the tables made anew, the Baseline emptied.
    void enterNozzles(int count) {
        app().panel.txtNoOfNozzle = std::to_string(count);
        ASSERT_FALSE(NozzleCheck(app(), ui()));
    }
    // File > Open of a shipped example site, from the point where it is chosen.
    void openExample(const char* name) {
        ASSERT_TRUE(OpenSiteFile(app(), (folder.path() / "SaveSiteInfo" / name).string(), ui()));
    }

    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    Started started;
};

} // namespace vesk::test
