// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The text codec, the message boxes, the splash and the dialogs System Settings, System Headloss Details and About.
#include "gui/support/gui_test_support.h"
#include "support/recording_interaction.h"
#include "support/temp_program_folder.h"
#include "gui/workbench/about_dialog.h"
#include "gui/workbench/details_dialog.h"
#include "gui/workbench/dialogs.h"
#include "gui/common/qt_user_interaction.h"
#include "gui/workbench/settings_dialog.h"
#include "gui/workbench/splash_window.h"
#include "gui/common/text_codec.h"

#include "engine/numeric.h"
#include "workbench/details_view.h"
#include "workbench/startup.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QtTest>
#include <cmath>
#include <functional>
#include <memory>

namespace vesk::gui::test {

namespace {

using vesk::test::RecordingInteraction;
using vesk::test::TempProgramFolder;

// An application started on a program folder.
struct StartedApp {
    explicit StartedApp(TempProgramFolder programFolder) : folder(std::move(programFolder)) {}
    TempProgramFolder folder;
    ApplicationState app;
    RecordingInteraction ui;
};

std::unique_ptr<StartedApp> startOn(TempProgramFolder folder) {
    auto started = std::make_unique<StartedApp>(std::move(folder));
    started->app.programFolder = started->folder.path();
    InitialiseMainWindow(started->app, started->ui);
    return started;
}

std::unique_ptr<StartedApp> startShipped() {
    return startOn(TempProgramFolder::copyOfShipped());
}

// The shipped folder with settings that say gas, metric, American.
std::unique_ptr<StartedApp> startShippedMetric() {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    folder.writeLines("Vesk.ini", {"40", "4", "True", "False", "A"});
    return startOn(std::move(folder));
}

template <typename T> T* child(QWidget* parent, const char* name) {
    T* widget = parent->findChild<T*>(QString::fromLatin1(name));
    if (widget == nullptr) {
        qWarning("no child %s", name);
    }
    return widget;
}

QString labelText(QWidget* parent, const char* name) {
    const QLabel* label = child<QLabel>(parent, name);
    return label != nullptr ? label->text() : QStringLiteral("<missing %1>").arg(QLatin1String(name));
}

void click(QWidget* parent, const char* name) {
    QAbstractButton* button = child<QAbstractButton>(parent, name);
    QVERIFY(button != nullptr);
    button->click();
}

QWidget* visibleTopLevel(const std::function<bool(QWidget*)>& matches) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible() && matches(widget)) {
            return widget;
        }
    }
    return nullptr;
}

// Answers the next modal window that `matches` from a polling timer, so that a
// call that runs its own event loop returns. If none appears within five
// seconds every visible dialog is closed, so the test fails instead of hanging.
class ModalDriver {
  public:
    ModalDriver(std::function<bool(QWidget*)> matches, std::function<void(QWidget*)> answer)
        : m_matches(std::move(matches)), m_answer(std::move(answer)) {
        m_clock.start();
        QObject::connect(&m_timer, &QTimer::timeout, [this] { poll(); });
        m_timer.start(10);
    }

    bool answered() const { return m_answered; }

  private:
    void poll() {
        if (QWidget* window = visibleTopLevel(m_matches)) {
            m_timer.stop();
            m_answered = true;
            m_answer(window);
            return;
        }
        if (m_clock.elapsed() > 5000) {
            m_timer.stop();
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                if (auto* dialog = qobject_cast<QDialog*>(widget); dialog != nullptr && dialog->isVisible()) {
                    dialog->done(QDialog::Rejected);
                }
            }
        }
    }

    std::function<bool(QWidget*)> m_matches;
    std::function<void(QWidget*)> m_answer;
    QTimer m_timer;
    QElapsedTimer m_clock;
    bool m_answered = false;
};

// What a message box showed when it was answered.
struct SeenBox {
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
};

std::unique_ptr<ModalDriver> pressInNextBox(QMessageBox::StandardButton button, SeenBox& seen) {
    return std::make_unique<ModalDriver>(
        [](QWidget* widget) { return qobject_cast<QMessageBox*>(widget) != nullptr; },
        [button, &seen](QWidget* widget) {
            auto* box = qobject_cast<QMessageBox*>(widget);
            seen = {box->windowTitle(), box->text(), box->icon(), box->standardButtons()};
            if (QAbstractButton* pressed = box->button(button)) {
                pressed->click();
            } else {
                box->done(QMessageBox::Cancel);
            }
        });
}

// Half the spacing of Singles at the timer's present value: how far the
// Single target of the splash's wait may lie from the exact one.
double halfSingleStepAtTimer() {
    QElapsedTimer now;
    now.start();
    const float timer =
        static_cast<float>(static_cast<std::int32_t>(static_cast<std::uint32_t>(now.msecsSinceReference())));
    return (std::nextafter(std::fabs(timer), INFINITY) - std::fabs(timer)) / 2.0;
}

} // namespace

class DialogsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase();
    void cleanup();

    void codecReadsWindows1252_data();
    void codecReadsWindows1252();
    void codecWritesEveryByteBackAsItWasRead();
    void codecWritesCharactersOutsideTheCodePageAsQuestionMarks_data();
    void codecWritesCharactersOutsideTheCodePageAsQuestionMarks();

    void messageBoxHasOkTheProgramsTitleAndItsIcon_data();
    void messageBoxHasOkTheProgramsTitleAndItsIcon();
    void yesNoCancelQuestionGivesTheButtonPressed_data();
    void yesNoCancelQuestionGivesTheButtonPressed();
    void yesNoQuestionGivesTheButtonPressed_data();
    void yesNoQuestionGivesTheButtonPressed();

    void settingsDialogShowsTheSystemsTexts();
    void settingsDialogLoadsItsOptionsFromTheSettings_data();
    void settingsDialogLoadsItsOptionsFromTheSettings();
    void settingsDialogLeftLoadedByASiteReadKeepsItsOptions();
    void settingsOkWithMetricConvertsTheFieldsOnce();
    void settingsOkWithDieselTellsTheSettingsAndLeavesTheFields();
    void settingsCancelChangesNothingAndUnloadsTheDialog();
    void settingsCloseBoxActsAsCancel();
    void showSystemSettingsReturnsWhetherOkWasPressed();

    void detailsInUsUnitsShowTheBreakdownOfTheFailingStep();
    void detailsInMetricUnitsShowMetricCaptionsAndMetres();
    void detailsOfAFullSiteShowEveryTermAsANumber();
    void detailsLeaveTheResultTablesAsTheyWere();
    void detailsWithANumberOfNozzlesThatDoesNotConvertFail();
    void detailsCloseButtonClosesTheDialog();

    void aboutShowsTheProgramsVersion();
    void aboutOkClosesTheDialog();

    void splashShowsTheProductNameAndVersion();
    void splashWaitsThenLoadsTheMainWindowAndCloses();
    void splashWaitLetsEventsRun();
};

void DialogsTest::initTestCase() {
    // The splash closes itself as the only window; that must not end the tests.
    QApplication::setQuitOnLastWindowClosed(false);
}

void DialogsTest::cleanup() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QWidgetList leaked = QApplication::topLevelWidgets();
    for (QWidget* widget : leaked) {
        qWarning() << "leaked window" << widget->objectName() << widget->metaObject()->className();
    }
    QVERIFY(leaked.isEmpty());
}

// --- The text codec ---------------------------------------------------------

void DialogsTest::codecReadsWindows1252_data() {
    QTest::addColumn<int>("byte");
    QTest::addColumn<uint>("character");
    QTest::newRow("0x41 Latin capital A") << 0x41 << 0x0041U;
    QTest::newRow("0x80 euro sign") << 0x80 << 0x20ACU;
    QTest::newRow("0x82 low single quote") << 0x82 << 0x201AU;
    QTest::newRow("0x83 f with hook") << 0x83 << 0x0192U;
    QTest::newRow("0x84 low double quote") << 0x84 << 0x201EU;
    QTest::newRow("0x85 ellipsis") << 0x85 << 0x2026U;
    QTest::newRow("0x86 dagger") << 0x86 << 0x2020U;
    QTest::newRow("0x87 double dagger") << 0x87 << 0x2021U;
    QTest::newRow("0x88 circumflex") << 0x88 << 0x02C6U;
    QTest::newRow("0x89 per mille") << 0x89 << 0x2030U;
    QTest::newRow("0x8A S caron") << 0x8A << 0x0160U;
    QTest::newRow("0x8B single left angle quote") << 0x8B << 0x2039U;
    QTest::newRow("0x8C OE") << 0x8C << 0x0152U;
    QTest::newRow("0x8E Z caron") << 0x8E << 0x017DU;
    QTest::newRow("0x91 left single quote") << 0x91 << 0x2018U;
    QTest::newRow("0x92 right single quote") << 0x92 << 0x2019U;
    QTest::newRow("0x93 left double quote") << 0x93 << 0x201CU;
    QTest::newRow("0x94 right double quote") << 0x94 << 0x201DU;
    QTest::newRow("0x95 bullet") << 0x95 << 0x2022U;
    QTest::newRow("0x96 en dash") << 0x96 << 0x2013U;
    QTest::newRow("0x97 em dash") << 0x97 << 0x2014U;
    QTest::newRow("0x98 small tilde") << 0x98 << 0x02DCU;
    QTest::newRow("0x99 trade mark") << 0x99 << 0x2122U;
    QTest::newRow("0x9A s caron") << 0x9A << 0x0161U;
    QTest::newRow("0x9B single right angle quote") << 0x9B << 0x203AU;
    QTest::newRow("0x9C oe") << 0x9C << 0x0153U;
    QTest::newRow("0x9E z caron") << 0x9E << 0x017EU;
    QTest::newRow("0x9F Y diaeresis") << 0x9F << 0x0178U;
    QTest::newRow("0x81 unassigned stays a control") << 0x81 << 0x0081U;
    QTest::newRow("0x8D unassigned stays a control") << 0x8D << 0x008DU;
    QTest::newRow("0x8F unassigned stays a control") << 0x8F << 0x008FU;
    QTest::newRow("0x90 unassigned stays a control") << 0x90 << 0x0090U;
    QTest::newRow("0x9D unassigned stays a control") << 0x9D << 0x009DU;
    QTest::newRow("0xA0 no-break space") << 0xA0 << 0x00A0U;
    QTest::newRow("0xB0 degree sign") << 0xB0 << 0x00B0U;
    QTest::newRow("0xE9 e acute") << 0xE9 << 0x00E9U;
    QTest::newRow("0xFF y diaeresis") << 0xFF << 0x00FFU;
}

void DialogsTest::codecReadsWindows1252() {
    QFETCH(int, byte);
    QFETCH(uint, character);
    const std::string bytes(1, static_cast<char>(byte));
    const QString text = fromWindows1252(bytes);
    QCOMPARE(text.size(), 1);
    QCOMPARE(static_cast<uint>(text.at(0).unicode()), character);
    QCOMPARE(toWindows1252(text), bytes);
}

void DialogsTest::codecWritesEveryByteBackAsItWasRead() {
    std::string every;
    for (int byte = 0; byte < 256; ++byte) {
        every.push_back(static_cast<char>(byte));
    }
    const QString text = fromWindows1252(every);
    QCOMPARE(text.size(), 256);
    QCOMPARE(toWindows1252(text), every);
    QCOMPARE(fromWindows1252("Caf\xE9 \x80 5"), QStringLiteral(u"Café € 5"));
}

void DialogsTest::codecWritesCharactersOutsideTheCodePageAsQuestionMarks_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("Greek omega") << QStringLiteral(u"\u03A9") << QByteArray("?");
    QTest::newRow("a character beyond the plane is one mark") << QString::fromUcs4(U"\U0001F600", 1) << QByteArray("?");
    QTest::newRow("the euro sign and the rest") << QStringLiteral(u"\u20AC5 \u2264 6")
                                                << QByteArray("\x80"
                                                              "5 ? 6");
    QTest::newRow("an assigned control of the upper range") << QStringLiteral(u"\u0080") << QByteArray("?");
}

void DialogsTest::codecWritesCharactersOutsideTheCodePageAsQuestionMarks() {
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QCOMPARE(QByteArray::fromStdString(toWindows1252(text)), bytes);
}

// --- The message boxes ------------------------------------------------------

void DialogsTest::messageBoxHasOkTheProgramsTitleAndItsIcon_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("icon");
    QTest::newRow("message 10 has the exclamation")
        << 10 << QStringLiteral("Error in File Load") << static_cast<int>(QMessageBox::Warning);
    QTest::newRow("message 8 has no icon")
        << 8 << QStringLiteral("INI file does not exist") << static_cast<int>(QMessageBox::NoIcon);
}

void DialogsTest::messageBoxHasOkTheProgramsTitleAndItsIcon() {
    QFETCH(int, code);
    QFETCH(QString, text);
    QFETCH(int, icon);
    QWidget owner;
    QtUserInteraction ui(&owner);
    SeenBox seen;
    const auto driver = pressInNextBox(QMessageBox::Ok, seen);
    ShowMessage(code, ui);
    QVERIFY(driver->answered());
    QCOMPARE(seen.title, QStringLiteral("Vesk"));
    QCOMPARE(seen.text, text);
    QCOMPARE(static_cast<int>(seen.icon), icon);
    QCOMPARE(seen.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
}

void DialogsTest::yesNoCancelQuestionGivesTheButtonPressed_data() {
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes") << static_cast<int>(QMessageBox::Yes) << static_cast<int>(Answer::Yes);
    QTest::newRow("No") << static_cast<int>(QMessageBox::No) << static_cast<int>(Answer::No);
    QTest::newRow("Cancel") << static_cast<int>(QMessageBox::Cancel) << static_cast<int>(Answer::Cancel);
}

void DialogsTest::yesNoCancelQuestionGivesTheButtonPressed() {
    QFETCH(int, button);
    QFETCH(int, answer);
    QtUserInteraction ui(nullptr);
    SeenBox seen;
    const auto driver = pressInNextBox(static_cast<QMessageBox::StandardButton>(button), seen);
    const Answer given = ui.askYesNoCancel("Current Values are not saved. Do you want to save now?");
    QVERIFY(driver->answered());
    QCOMPARE(static_cast<int>(given), answer);
    QCOMPARE(seen.title, QStringLiteral("Vesk"));
    QCOMPARE(seen.text, QStringLiteral("Current Values are not saved. Do you want to save now?"));
    QCOMPARE(seen.icon, QMessageBox::NoIcon);
    QCOMPARE(seen.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
}

void DialogsTest::yesNoQuestionGivesTheButtonPressed_data() {
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes") << static_cast<int>(QMessageBox::Yes) << static_cast<int>(Answer::Yes);
    QTest::newRow("No") << static_cast<int>(QMessageBox::No) << static_cast<int>(Answer::No);
}

void DialogsTest::yesNoQuestionGivesTheButtonPressed() {
    QFETCH(int, button);
    QFETCH(int, answer);
    QtUserInteraction ui(nullptr);
    SeenBox seen;
    const auto driver = pressInNextBox(static_cast<QMessageBox::StandardButton>(button), seen);
    const Answer given = ui.askYesNo("Delete the component?");
    QVERIFY(driver->answered());
    QCOMPARE(static_cast<int>(given), answer);
    QCOMPARE(seen.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(seen.title, QStringLiteral("Vesk"));
}

// --- System Settings --------------------------------------------------------

void DialogsTest::settingsDialogShowsTheSystemsTexts() {
    ApplicationState app;
    SettingsDialog dialog(app);
    QCOMPARE(dialog.objectName(), QStringLiteral("frmData"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("System Settings"));
    const std::pair<const char*, const char*> frames[] = {
        {"fraComponent", "Component List"}, {"fraData", "Data"}, {"fraUnits", "Units"}, {"fraHelp", "Help"}};
    for (const auto& [name, title] : frames) {
        const QGroupBox* frame = child<QGroupBox>(&dialog, name);
        QVERIFY(frame != nullptr);
        QCOMPARE(frame->title(), QString::fromLatin1(title));
    }
    const std::pair<const char*, const char*> buttons[] = {
        {"optAmerican", "American"},     {"optInternational", "International"},
        {"optCommercial", "Commercial"}, {"optGas", "Gas"},
        {"optDiesel", "Diesel"},         {"optUS", "US"},
        {"optMetric", "Metric"},         {"cmdOk", "Ok"},
        {"cmdCancel", "Cancel"}};
    for (const auto& [name, caption] : buttons) {
        const QAbstractButton* button = child<QAbstractButton>(&dialog, name);
        QVERIFY(button != nullptr);
        QCOMPARE(button->text(), QString::fromLatin1(caption));
    }
    QCOMPARE(child<QRadioButton>(&dialog, "optGas")->parentWidget()->objectName(), QStringLiteral("fraData"));
    QCOMPARE(child<QRadioButton>(&dialog, "optMetric")->parentWidget()->objectName(), QStringLiteral("fraUnits"));
    QCOMPARE(child<QRadioButton>(&dialog, "optCommercial")->parentWidget()->objectName(),
             QStringLiteral("fraComponent"));
    QCOMPARE(labelText(&dialog, "lblDataLocalization"),
             QStringLiteral("Select the options for loading data in the site areas"));
    QCOMPARE(labelText(&dialog, "lblHelp"),
             QStringLiteral("All the operations of Vesk will be performed on the basis of the selection of "
                            "Component List, Data and Units. If user select American in Component List, Gas in "
                            "Data and US in Units, in all the site area the component which is having American "
                            "component list and Gas type will be shown"));
    QCOMPARE(child<QLabel>(&dialog, "lblHelp")->parentWidget()->objectName(), QStringLiteral("fraHelp"));
}

void DialogsTest::settingsDialogLoadsItsOptionsFromTheSettings_data() {
    QTest::addColumn<int>("componentList");
    QTest::addColumn<bool>("units");
    QTest::addColumn<bool>("data");
    QTest::addColumn<QStringList>("checked");
    QTest::newRow("gas, US, American") << 0 << true << true << QStringList{"optAmerican", "optGas", "optUS"};
    QTest::newRow("diesel, metric, International")
        << 1 << false << false << QStringList{"optInternational", "optDiesel", "optMetric"};
    QTest::newRow("gas, metric, Commercial")
        << 2 << false << true << QStringList{"optCommercial", "optGas", "optMetric"};
}

void DialogsTest::settingsDialogLoadsItsOptionsFromTheSettings() {
    QFETCH(int, componentList);
    QFETCH(bool, units);
    QFETCH(bool, data);
    QFETCH(QStringList, checked);
    ApplicationState app;
    app.config.ComponentList = static_cast<Byte>(componentList);
    app.config.Units = units;
    app.config.Data = data;
    SettingsDialog dialog(app);
    QStringList shown;
    for (const QRadioButton* button : dialog.findChildren<QRadioButton*>()) {
        if (button->isChecked()) {
            shown << button->objectName();
        }
    }
    shown.sort();
    checked.sort();
    QCOMPARE(shown, checked);
    QVERIFY(app.panel.frmDataLoaded);
}

void DialogsTest::settingsDialogLeftLoadedByASiteReadKeepsItsOptions() {
    ApplicationState app;
    app.config = {0, true, true}; // American, US, gas
    app.panel.frmDataLoaded = true;
    app.panel.frmData.optDiesel = true;
    app.panel.frmData.optCommercial = true;
    app.panel.frmData.optMetric = true;
    SettingsDialog dialog(app);
    QVERIFY(child<QRadioButton>(&dialog, "optDiesel")->isChecked());
    QVERIFY(!child<QRadioButton>(&dialog, "optGas")->isChecked());
    QVERIFY(child<QRadioButton>(&dialog, "optCommercial")->isChecked());
    QVERIFY(!child<QRadioButton>(&dialog, "optAmerican")->isChecked());
    QVERIFY(child<QRadioButton>(&dialog, "optMetric")->isChecked());
    QVERIFY(!child<QRadioButton>(&dialog, "optUS")->isChecked());
}

void DialogsTest::settingsOkWithMetricConvertsTheFieldsOnce() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    QCOMPARE(app.panel.txtTankDiameter, std::string("96"));
    {
        SettingsDialog dialog(app);
        dialog.show();
        saveScreenshot(&dialog, QStringLiteral("frmData"));
        click(&dialog, "optMetric");
        click(&dialog, "cmdOk");
        QCOMPARE(dialog.result(), static_cast<int>(QDialog::Accepted));
        QVERIFY(!dialog.isVisible());
        QVERIFY(dialog.replotRequested()); // start-up has calculated
    }
    QCOMPARE(app.panel.txtTankDiameter, std::string("243.8"));
    QCOMPARE(app.panel.txtBuryDepth, std::string("0.9"));
    QCOMPARE(app.panel.captions.lblTankDiameter, std::string("Tank Diameter(cm)"));
    QCOMPARE(app.panel.captions.lblHoseLength, std::string("Hose Length(m)"));
    QVERIFY(app.flags.blnMetricActive);
    QVERIFY(!app.flags.blnUSActive);
    QVERIFY(!app.config.Units);
    QVERIFY(!app.panel.frmDataLoaded);

    SettingsDialog again(app);
    QVERIFY(child<QRadioButton>(&again, "optMetric")->isChecked());
    click(&again, "cmdOk");
    QCOMPARE(app.panel.txtTankDiameter, std::string("243.8"));
    QCOMPARE(app.panel.txtBuryDepth, std::string("0.9"));
}

void DialogsTest::settingsOkWithDieselTellsTheSettingsAndLeavesTheFields() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    QVERIFY(app.config.Data);
    SettingsDialog dialog(app);
    click(&dialog, "optDiesel");
    click(&dialog, "cmdOk");
    QVERIFY(!app.config.Data);
    QVERIFY(app.config.Units);
    QCOMPARE(app.panel.txtTankDiameter, std::string("96"));
}

void DialogsTest::settingsCancelChangesNothingAndUnloadsTheDialog() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    const std::string tank = app.panel.txtTankDiameter;
    const std::string dispenser = app.panel.cmbDispenser.Text();
    const Long dispenserIndex = app.panel.cmbDispenser.ListIndex();
    SettingsDialog dialog(app);
    click(&dialog, "optMetric");
    click(&dialog, "optDiesel");
    click(&dialog, "optCommercial");
    click(&dialog, "cmdCancel");
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(!dialog.replotRequested());
    QCOMPARE(app.panel.txtTankDiameter, tank);
    QCOMPARE(app.panel.cmbDispenser.Text(), dispenser);
    QCOMPARE(app.panel.cmbDispenser.ListIndex(), dispenserIndex);
    QVERIFY(app.config.Units);
    QVERIFY(app.config.Data);
    QCOMPARE(static_cast<int>(app.config.ComponentList), 0);
    QVERIFY(app.flags.blnUSActive);
    QCOMPARE(app.panel.captions.lblTankDiameter, std::string("Tank Diameter(inch)"));
    QVERIFY(!app.panel.frmDataLoaded);
    // Loaded again, it shows the settings, not the choice that was cancelled.
    SettingsDialog again(app);
    QVERIFY(child<QRadioButton>(&again, "optUS")->isChecked());
    QVERIFY(child<QRadioButton>(&again, "optGas")->isChecked());
}

void DialogsTest::settingsCloseBoxActsAsCancel() {
    ApplicationState app;
    app.panel.frmDataLoaded = true;
    app.panel.frmData.optMetric = true;
    SettingsDialog dialog(app);
    dialog.show();
    QVERIFY(dialog.close());
    QCOMPARE(dialog.result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(!app.panel.frmDataLoaded);
}

void DialogsTest::showSystemSettingsReturnsWhetherOkWasPressed() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    const auto isSettings = [](QWidget* widget) { return widget->objectName() == QLatin1String("frmData"); };
    {
        const ModalDriver driver(isSettings, [](QWidget* dialog) { click(dialog, "cmdOk"); });
        QVERIFY(ShowSystemSettings(nullptr, app));
        QVERIFY(driver.answered());
    }
    {
        const ModalDriver driver(isSettings, [](QWidget* dialog) { click(dialog, "cmdCancel"); });
        QVERIFY(!ShowSystemSettings(nullptr, app));
        QVERIFY(driver.answered());
    }
}

// --- System Headloss Details ------------------------------------------------

void DialogsTest::detailsInUsUnitsShowTheBreakdownOfTheFailingStep() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    DetailsDialog dialog(app);
    QCOMPARE(dialog.objectName(), QStringLiteral("frmDetails"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("System Headloss Details"));
    QCOMPARE(labelText(&dialog, "Label1"), QStringLiteral("Total Rise (ft)"));
    QCOMPARE(labelText(&dialog, "Label12"), QStringLiteral("Dispenser Others Loss(ft)"));
    QCOMPARE(labelText(&dialog, "Label9"), QStringLiteral("TDH (ft)"));
    // Start-up leaves the hose at "None": its term is 0 and shows as out of range.
    QCOMPARE(labelText(&dialog, "Hose"), QStringLiteral("O/R"));
    bool isNumber = false;
    const double tdhFt = labelText(&dialog, "Total").toDouble(&isNumber);
    QVERIFY(isNumber);
    QVERIFY(tdhFt > 0);
    QVERIFY(app.results.engine.TrialFlow > 0);
    const auto lines = DetailsLines(app.results.engine.Breakdown, true);
    for (const DetailsLine& line : lines) {
        QCOMPARE(labelText(&dialog, line.captionControl.c_str()), QString::fromStdString(line.caption));
        QCOMPARE(labelText(&dialog, line.valueControl.c_str()), QString::fromStdString(line.value));
    }
    dialog.show();
    saveScreenshot(&dialog, QStringLiteral("frmDetails-US"));
}

void DialogsTest::detailsInMetricUnitsShowMetricCaptionsAndMetres() {
    const std::string usTotal = [] {
        const auto us = startShipped();
        DetailsDialog dialog(us->app);
        return labelText(&dialog, "Total").toStdString();
    }();
    const auto started = startShippedMetric();
    ApplicationState& app = started->app;
    QVERIFY(app.flags.blnMetricActive);
    DetailsDialog dialog(app);
    QCOMPARE(labelText(&dialog, "Label1"), QStringLiteral("Total Rise(m)"));
    QCOMPARE(labelText(&dialog, "Label12"), QStringLiteral("Disp Others Loss(m)"));
    QCOMPARE(labelText(&dialog, "Label7"), QStringLiteral("Hose Loss(m)"));
    QCOMPARE(labelText(&dialog, "Label9"), QStringLiteral("TDH(m)"));
    QCOMPARE(labelText(&dialog, "Hose"), QStringLiteral("O/R"));
    // 96 inches and 3 feet become 243.8 cm and 0.9 m: a rise of 10.95 feet.
    QCOMPARE(labelText(&dialog, "Rise"), QStringLiteral("3.3"));
    bool isNumber = false;
    const double tdhM = labelText(&dialog, "Total").toDouble(&isNumber);
    QVERIFY(isNumber);
    // The metric fields hold the same site to within their rounding.
    const double usTdhFt = std::stod(usTotal);
    QVERIFY2(std::fabs(tdhM - usTdhFt * 0.3048) < 0.1,
             qPrintable(QStringLiteral("%1 m against %2 ft").arg(tdhM).arg(usTdhFt)));
    const auto lines = DetailsLines(app.results.engine.Breakdown, false);
    for (const DetailsLine& line : lines) {
        QCOMPARE(labelText(&dialog, line.valueControl.c_str()), QString::fromStdString(line.value));
    }
    dialog.show();
    saveScreenshot(&dialog, QStringLiteral("frmDetails-metric"));
}

void DialogsTest::detailsOfAFullSiteShowEveryTermAsANumber() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    app.panel.txtTrunkLength = "100";
    app.panel.txtBranchLength = "50";
    app.panel.cmbHoseSize.SetListIndex(1);
    app.panel.txtHoseLen = "10";
    DetailsDialog dialog(app);
    double sumFt = 0;
    for (const char* term :
         {"Rise", "MLD", "Trunk", "Branch", "Disp", "DispOthers", "Brk", "Hose", "Nozzle", "PumpOthers"}) {
        bool isNumber = false;
        sumFt += labelText(&dialog, term).toDouble(&isNumber);
        QVERIFY2(isNumber, term);
    }
    const double tdhFt = labelText(&dialog, "Total").toDouble();
    QVERIFY2(std::fabs(tdhFt - sumFt) <= 0.55, qPrintable(QStringLiteral("%1 against %2").arg(tdhFt).arg(sumFt)));
    dialog.show();
    saveScreenshot(&dialog, QStringLiteral("frmDetails-full-site"));
}

void DialogsTest::detailsLeaveTheResultTablesAsTheyWere() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    const std::vector<Single> current = app.results.Current.GpmPerNozzle;
    const std::vector<Single> baseline = app.results.Baseline.GpmPerNozzle;
    app.results.engine.TrialFlow = 0;
    DetailsDialog dialog(app);
    QVERIFY(app.results.Current.GpmPerNozzle == current);
    QVERIFY(app.results.Baseline.GpmPerNozzle == baseline);
    QVERIFY(app.results.engine.TrialFlow > 0);
}

void DialogsTest::detailsWithANumberOfNozzlesThatDoesNotConvertFail() {
    const auto started = startShipped();
    ApplicationState& app = started->app;
    app.panel.txtNoOfNozzle = "eight";
    QVERIFY_THROWS_EXCEPTION(RunTimeFailure, DetailsDialog dialog(app));
}

void DialogsTest::detailsCloseButtonClosesTheDialog() {
    const auto started = startShipped();
    DetailsDialog dialog(started->app);
    dialog.show();
    click(&dialog, "cmdClose");
    QVERIFY(!dialog.isVisible());
    const auto isDetails = [](QWidget* widget) { return widget->objectName() == QLatin1String("frmDetails"); };
    const ModalDriver driver(isDetails, [](QWidget* shown) { click(shown, "cmdClose"); });
    ShowDetails(nullptr, started->app);
    QVERIFY(driver.answered());
}

// --- About --------------------------------------------------------------------

void DialogsTest::aboutShowsTheProgramsVersion() {
    AboutDialog dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("frmAbout"));
    QCOMPARE(labelText(&dialog, "lblVersion"), QStringLiteral("Vesk Version 1.0"));
    dialog.show();
    saveScreenshot(&dialog, QStringLiteral("frmAbout"));
}

void DialogsTest::aboutOkClosesTheDialog() {
    AboutDialog dialog;
    dialog.show();
    click(&dialog, "cmdAboutOK");
    QVERIFY(!dialog.isVisible());
    const auto isAbout = [](QWidget* widget) { return widget->objectName() == QLatin1String("frmAbout"); };
    const ModalDriver driver(isAbout, [](QWidget* shown) { click(shown, "cmdAboutOK"); });
    ShowAbout(nullptr);
    QVERIFY(driver.answered());
}

// --- The splash -----------------------------------------------------------------

void DialogsTest::splashShowsTheProductNameAndVersion() {
    SplashWindow splash;
    QCOMPARE(splash.objectName(), QStringLiteral("frmSplash"));
    QVERIFY(splash.windowTitle().isEmpty());
    QCOMPARE(labelText(&splash, "lblProductName"), QStringLiteral("Vesk"));
    QCOMPARE(labelText(&splash, "lblVersion"), QStringLiteral("Version 1.0"));
    splash.show();
    saveScreenshot(&splash, QStringLiteral("frmSplash"));
}

void DialogsTest::splashWaitsThenLoadsTheMainWindowAndCloses() {
    constexpr int waitMs = 120;
    SplashWindow splash;
    QElapsedTimer clock;
    qint64 loadedAfterMs = -1;
    bool visibleWhileLoading = false;
    clock.start();
    splash.runThen(
        [&] {
            loadedAfterMs = clock.elapsed();
            visibleWhileLoading = splash.isVisible();
        },
        waitMs);
    QVERIFY(splash.isVisible());
    QCOMPARE(loadedAfterMs, -1); // not before the window is on the screen and the wait is over
    QTRY_VERIFY_WITH_TIMEOUT(loadedAfterMs >= 0, 5000);
    QVERIFY2(loadedAfterMs >= waitMs - halfSingleStepAtTimer() - 1, qPrintable(QString::number(loadedAfterMs)));
    QVERIFY(visibleWhileLoading); // the splash stays on the screen while the main window loads
    QTRY_VERIFY(!splash.isVisible());
}

void DialogsTest::splashWaitLetsEventsRun() {
    SplashWindow splash;
    bool eventRan = false;
    bool eventRanBeforeLoading = false;
    QTimer::singleShot(20, [&eventRan] { eventRan = true; });
    bool loaded = false;
    splash.runThen(
        [&] {
            eventRanBeforeLoading = eventRan;
            loaded = true;
        },
        200);
    QTRY_VERIFY_WITH_TIMEOUT(loaded, 5000);
    QVERIFY(eventRanBeforeLoading);
}

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::DialogsTest)
#include "dialogs_test.moc"
