// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The help viewer as a designer meets it: F1 in the main window opens the page, links and the contents are followed.
#include "gui/common/help_viewer.h"
#include "gui/common/qt_user_interaction.h"
#include "gui/editors/component_editor_dialog.h"
#include "gui/editors/editor_menu.h"
#include "gui/support/screenshot.h"
#include "gui/workbench/main_window.h"
#include "support/temp_program_folder.h"
#include "workbench/startup.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTextDocument>
#include <memory>

using vesk::gui::HelpViewer;
using vesk::test::TempProgramFolder;

namespace {

// The main window over a copy of the shipped program folder, with the real
// boxes and help viewer of the program, on show.
struct RealWindow {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    vesk::gui::QtUserInteraction ui{nullptr};
    vesk::ApplicationState app;
    std::unique_ptr<vesk::gui::MainWindow> window;

    RealWindow() {
        app.programFolder = folder.path();
        vesk::InitialiseMainWindow(app, ui);
        window = std::make_unique<vesk::gui::MainWindow>(app, ui);
        window->show();
    }
    bool shown() const { return QTest::qWaitForWindowExposed(window.get()); }
};

} // namespace

class HelpViewerTest : public QObject {
    Q_OBJECT

  private slots:
    void cleanup();
    void f1InThePumpAreaOpensTheViewerOnTheMainWindowsPage();
    void f1InTheHosesEditorOpensTheViewerOnTheHosesPageAndTheViewerTakesInput();
    void topicsAreFoundWithBackslashesAndWithoutRegardToCase();
    void linksStylesheetsAndTheContentsPageAreFollowedInsideTheFile();
    void aFileThatIsNoHelpFileOpensNothing();
};

void HelpViewerTest::cleanup() {
    if (HelpViewer* viewer = HelpViewer::instance()) {
        viewer->close();
        QApplication::processEvents();
    }
}

void HelpViewerTest::f1InThePumpAreaOpensTheViewerOnTheMainWindowsPage() {
    RealWindow real;
    QVERIFY(real.shown());
    vesk::gui::MainWindow* window = real.window.get();
    window->findChild<QPushButton*>(QStringLiteral("cmdPump"))->click();
    auto* pumps = window->findChild<QComboBox*>(QStringLiteral("cmbPumps"));
    QTest::keyClick(pumps, Qt::Key_F1);

    HelpViewer* viewer = HelpViewer::instance();
    QVERIFY(viewer != nullptr);
    QVERIFY(viewer->isVisible());
    QVERIFY(!viewer->isModal());
    QCOMPARE(viewer->currentPath(), QStringLiteral("/Main Functionality/Dynamic Flow Graph.htm"));
    QCOMPARE(viewer->browser()->documentTitle(), QStringLiteral("Dynamic Flow Graph"));
    // The main window goes on beside it.
    QVERIFY(window->isEnabled());
    vesk::gui::test::saveScreenshot(viewer, QStringLiteral("help_viewer_f1_pump_area"));
    vesk::gui::test::saveScreenshot(window, QStringLiteral("help_viewer_main_window"));
    window->hide();
}

void HelpViewerTest::f1InTheHosesEditorOpensTheViewerOnTheHosesPageAndTheViewerTakesInput() {
    RealWindow real;
    QVERIFY(real.shown());
    vesk::gui::MainWindow* window = real.window.get();
    auto* menu = window->findChild<vesk::gui::ComponentEditorMenu*>();
    QVERIFY(menu != nullptr);
    const auto runDirectly = [](const std::function<void()>& work) {
        work();
        return true;
    };
    auto editor = std::make_unique<vesk::gui::ComponentEditorDialog>(vesk::ComponentKind::Hose, real.app,
                                                                     menu->session(), real.ui, runDirectly, window);
    editor->show();
    QVERIFY(QTest::qWaitForWindowActive(editor.get()));
    QCOMPARE(editor->objectName(), QStringLiteral("frmHose"));
    QTest::keyClick(editor.get(), Qt::Key_F1);

    HelpViewer* viewer = HelpViewer::instance();
    QVERIFY(viewer != nullptr);
    QVERIFY(viewer->isVisible());
    QCOMPARE(viewer->currentPath(), QStringLiteral("/Option Menu/Hoses.htm"));
    QCOMPARE(viewer->browser()->documentTitle(), QStringLiteral("Hoses"));
    // The editor is modal, yet the viewer takes the mouse and the keys: it
    // stands as a window of the editor's own, which the editor does not block.
    QVERIFY(editor->isModal());
    QVERIFY(viewer->isWindow());
    QCOMPARE(viewer->parentWidget(), editor.get());
    QVERIFY(!QGuiApplication::modalWindow() || QGuiApplication::modalWindow() == editor->windowHandle());
    vesk::gui::test::saveScreenshot(viewer, QStringLiteral("help_viewer_f1_hoses_editor"));
    viewer->close();
    editor->hide();
    window->hide();
}

void HelpViewerTest::topicsAreFoundWithBackslashesAndWithoutRegardToCase() {
    const std::filesystem::path file = vesk::test::shippedDataDir() / "VeskHelpFile.chm";
    HelpViewer* viewer = HelpViewer::showTopic(file, "option menu\\HOSES.HTM");
    QVERIFY(viewer != nullptr);
    QCOMPARE(viewer->browser()->documentTitle(), QStringLiteral("Hoses"));
    vesk::gui::test::saveScreenshot(viewer, QStringLiteral("help_viewer_hoses"));
    // The same window takes the next topic.
    QCOMPARE(HelpViewer::showTopic(file, "Option Menu\\Pumps.htm"), viewer);
    QCOMPARE(viewer->browser()->documentTitle(), QStringLiteral("Pumps"));
}

void HelpViewerTest::linksStylesheetsAndTheContentsPageAreFollowedInsideTheFile() {
    const std::filesystem::path file = vesk::test::shippedDataDir() / "VeskHelpFile.chm";
    HelpViewer* viewer = HelpViewer::showTopic(file, "Option Menu\\Pumps.htm");
    QVERIFY(viewer != nullptr);
    QTextBrowser* browser = viewer->browser();
    // The stylesheet of the page, a relative link with blanks in its name.
    QVERIFY(!browser->loadResource(QTextDocument::StyleSheetResource, browser->source().resolved(QUrl("../vesk.css")))
                 .toString()
                 .isEmpty());
    emit browser->anchorClicked(QUrl(QStringLiteral("../Main Functionality/Pump Area.htm")));
    QCOMPARE(viewer->currentPath(), QStringLiteral("/Main Functionality/Pump Area.htm"));
    QCOMPARE(browser->documentTitle(), QStringLiteral("Pump Area"));
    viewer->findChild<QPushButton*>(QStringLiteral("cmdHelpBack"))->click();
    QCOMPARE(viewer->currentPath(), QStringLiteral("/Option Menu/Pumps.htm"));
    viewer->findChild<QPushButton*>(QStringLiteral("cmdHelpContents"))->click();
    QCOMPARE(viewer->currentPath(), QStringLiteral("/Contents.htm"));
    QVERIFY(browser->toPlainText().contains(QStringLiteral("Update")));
}

void HelpViewerTest::aFileThatIsNoHelpFileOpensNothing() {
    const TempProgramFolder folder;
    folder.write("VeskHelpFile.chm", "not a help file");
    QVERIFY(HelpViewer::showTopic(folder.path() / "VeskHelpFile.chm", "Option Menu\\Pumps.htm") == nullptr);
    QApplication::processEvents();
    QVERIFY(HelpViewer::instance() == nullptr || !HelpViewer::instance()->isVisible());
}

QTEST_MAIN(HelpViewerTest)
#include "help_viewer_test.moc"
