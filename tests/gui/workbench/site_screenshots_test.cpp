// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Screenshots of the main window at its own size after opening each example site, for a person to look at.
#include "gui/support/screenshot.h"
#include "gui/support/station.h"

#include <QFileInfo>
#include <QImage>
#include <QScreen>
#include <QtTest>

namespace vesk::gui::test {

class SiteScreenshotsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        // The suite runs on a laptop screen of 1280x800, once at a device pixel
        // ratio of 1 and once at 2 (see the CMake file).
        QCOMPARE(QGuiApplication::primaryScreen()->geometry().size(), QSize(1280, 800));
    }
    void cleanup() { m_station.reset(); }

    void eachExampleSite_data() {
        QTest::addColumn<QString>("site");
        QTest::addColumn<QString>("nozzles");
        QTest::newRow("start-up") << QString() << QString();
        QTest::newRow("start-up, 40 nozzles") << QString() << "40";
        QTest::newRow("SmallGasStation") << "SmallGasStation.txt" << QString();
        QTest::newRow("DieselTruckStop") << "DieselTruckStop.txt" << QString();
        QTest::newRow("MetricStation") << "MetricStation.txt" << QString();
        QTest::newRow("BasicModeSite") << "BasicModeSite.txt" << QString();
    }
    void eachExampleSite() {
        QFETCH(QString, site);
        QFETCH(QString, nozzles);
        m_station = std::make_unique<Station>();
        Station& s = *m_station;
        s.window->show();
        QVERIFY(QTest::qWaitForWindowExposed(s.window.get()));
        QString name =
            QStringLiteral("site_") + (site.isEmpty() ? QStringLiteral("start-up") : site.section('.', 0, 0));
        if (!site.isEmpty()) {
            s.ui.chosenFiles = {s.sitePath(site.toLatin1().constData())};
            s.trigger("mnuOpen");
            QVERIFY(s.ui.shown.empty());
        }
        if (!nozzles.isEmpty()) {
            QVERIFY(!s.enter("txtNoOfNozzle", nozzles));
            s.click("cmdCalculate");
            s.click("BaseLine");
            name += QStringLiteral("_") + nozzles + QStringLiteral("_nozzles");
        }
        for (const auto& [area, suffix] : {std::pair{"cmdDispenser", "dispensing"}, std::pair{"cmdPump", "pump"}}) {
            s.click(area);
            if (QLatin1String(suffix) == QLatin1String("pump")) {
                s.click("cmdUpdate");
            }
            QTest::qWait(50);
            const QString file = saveScreenshot(s.window.get(), name + "_" + suffix + ratioSuffix());
            QVERIFY(QFileInfo::exists(file));
            const qreal ratio = s.window->devicePixelRatio();
            QCOMPARE(QImage(file).size(), s.window->size() * ratio);
        }
    }

  private:
    // The device pixel ratio in the name, so the screenshots at 2 stand beside the others.
    static QString ratioSuffix() {
        const qreal ratio = QGuiApplication::primaryScreen()->devicePixelRatio();
        return ratio == 1 ? QString() : QStringLiteral("_dpr%1").arg(ratio);
    }

    std::unique_ptr<Station> m_station;
};

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::SiteScreenshotsTest)

#include "site_screenshots_test.moc"
