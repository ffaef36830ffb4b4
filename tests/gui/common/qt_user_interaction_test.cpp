// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The user-interaction seam in Qt: message boxes with the program's title, questions and the file dialogs' filters.
#include "gui/common/qt_user_interaction.h"
#include "gui/support/modal_driver.h"

#include "messages/user_interaction.h"

#include <QMessageBox>
#include <QtTest>

namespace vesk::gui::test {

class QtUserInteractionTest : public QObject {
    Q_OBJECT

  private slots:
    void theFileFilterTakesQtsForm();
    void messageBoxHasOkTheProgramsTitleAndItsIcon_data();
    void messageBoxHasOkTheProgramsTitleAndItsIcon();
    void yesNoCancelQuestionGivesTheButtonPressed_data();
    void yesNoCancelQuestionGivesTheButtonPressed();
    void yesNoQuestionGivesTheButtonPressed_data();
    void yesNoQuestionGivesTheButtonPressed();
};

void QtUserInteractionTest::theFileFilterTakesQtsForm() {
    QCOMPARE(QtFileFilter("Vesk Files(*.txt)|*.txt"), QStringLiteral("Vesk Files(*.txt)"));
    QCOMPARE(QtFileFilter("Text|*.txt|All|*.*"), QStringLiteral("Text (*.txt);;All (*.*)"));
}

void QtUserInteractionTest::messageBoxHasOkTheProgramsTitleAndItsIcon_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("icon");
    QTest::newRow("message 10 has the exclamation")
        << 10 << QStringLiteral("Error in File Load") << static_cast<int>(QMessageBox::Warning);
    QTest::newRow("message 8 has no icon")
        << 8 << QStringLiteral("INI file does not exist") << static_cast<int>(QMessageBox::NoIcon);
}

void QtUserInteractionTest::messageBoxHasOkTheProgramsTitleAndItsIcon() {
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

void QtUserInteractionTest::yesNoCancelQuestionGivesTheButtonPressed_data() {
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes") << static_cast<int>(QMessageBox::Yes) << static_cast<int>(Answer::Yes);
    QTest::newRow("No") << static_cast<int>(QMessageBox::No) << static_cast<int>(Answer::No);
    QTest::newRow("Cancel") << static_cast<int>(QMessageBox::Cancel) << static_cast<int>(Answer::Cancel);
}

void QtUserInteractionTest::yesNoCancelQuestionGivesTheButtonPressed() {
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

void QtUserInteractionTest::yesNoQuestionGivesTheButtonPressed_data() {
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes") << static_cast<int>(QMessageBox::Yes) << static_cast<int>(Answer::Yes);
    QTest::newRow("No") << static_cast<int>(QMessageBox::No) << static_cast<int>(Answer::No);
}

void QtUserInteractionTest::yesNoQuestionGivesTheButtonPressed() {
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

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::QtUserInteractionTest)

#include "qt_user_interaction_test.moc"
