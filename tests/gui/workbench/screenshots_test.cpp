// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Screenshots of the main window and its dialogs, for a person to look at.
#include "gui/support/screenshot.h"
#include "gui/support/station.h"
#include "gui/workbench/about_dialog.h"
#include "gui/workbench/details_dialog.h"
#include "gui/workbench/settings_dialog.h"
#include "gui/workbench/splash_window.h"
#include "support/started_app.h"

#include <QDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QTabWidget>
#include <QtTest>

namespace vesk::gui::test {

namespace {

// The scale factor in the name, so screenshots at a scale of 2 stand beside the others.
QString scaleSuffix() {
    const QString scale = qEnvironmentVariable("QT_SCALE_FACTOR");
    return scale.isEmpty() || scale == QStringLiteral("1") ? QString() : QStringLiteral("_scale") + scale;
}

} // namespace

class ScreenshotsTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup() { m_station.reset(); }

    void eachAreaOfTheMainWindow_data() {
        QTest::addColumn<int>("area");
        QTest::addColumn<QString>("name");
        QTest::newRow("dispensing") << 0 << "main_window_dispensing";
        QTest::newRow("piping") << 1 << "main_window_piping";
        QTest::newRow("pump") << 2 << "main_window_pump";
        QTest::newRow("site") << 3 << "main_window_site";
    }
    void eachAreaOfTheMainWindow() {
        QFETCH(int, area);
        QFETCH(QString, name);
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        s.find<QTabWidget>("tabMain")->setCurrentIndex(area);
        if (area == 0) {
            s.choose("cmbQuantity", 1);
            s.click("BaseLine");
        }
        QTest::qWait(50);
        QVERIFY(QFileInfo::exists(saveScreenshot(s.window.get(), name + scaleSuffix())));
    }

    void siteProperties() {
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.show();
        QVERIFY(s.siteProperties([](QDialog* dialog) {
            dialog->findChild<QLineEdit*>(QStringLiteral("txtSiteInfo(0)"))->setText(QStringLiteral("Harbour Fuel"));
            dialog->findChild<QLineEdit*>(QStringLiteral("txtReport(3)"))
                ->setText(QStringLiteral("ops@harbour.example"));
            QVERIFY(QFileInfo::exists(saveScreenshot(dialog, QStringLiteral("site_properties") + scaleSuffix())));
        }));
    }

    void theDialogs() {
        const vesk::test::StartedApp us(TempProgramFolder::copyOfShipped());
        const vesk::test::StartedApp metric(vesk::test::shippedWithSettings({"40", "4", "True", "False", "A"}));
        ApplicationState app = us.app;
        ApplicationState metricApp = metric.app;
        SettingsDialog settings(app);
        DetailsDialog details(app);
        DetailsDialog metricDetails(metricApp);
        AboutDialog about;
        SplashWindow splash;
        const std::pair<QWidget*, const char*> shots[] = {{&settings, "frmData"},
                                                          {&details, "frmDetails-US"},
                                                          {&metricDetails, "frmDetails-metric"},
                                                          {&about, "frmAbout"},
                                                          {&splash, "frmSplash"}};
        for (const auto& [window, name] : shots) {
            window->show();
            QVERIFY(QFileInfo::exists(saveScreenshot(window, QLatin1String(name) + scaleSuffix())));
            window->hide();
        }
    }

  private:
    std::unique_ptr<Station> m_station;
};

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::ScreenshotsTest)

#include "screenshots_test.moc"
