// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Screenshots of the eight component editors in Browse, while adding, and with the head shown in PSI.
#include "editor_driving.h"
#include "gui/support/screenshot.h"

#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QRadioButton>

namespace vesk::gui::test {

class EditorScreenshotsTest : public QObject {
    Q_OBJECT

  private slots:
    void everyEditorInBrowseAddingAndPsi() {
        Station station;
        station.show();
        for (const EditorForm& form : editorForms) {
            const QString base = QString::fromLatin1(form.form.data(), static_cast<qsizetype>(form.form.size()));
            auto dialog = openEditor(station, form.kind);
            checkShot(dialog.get(), base + QStringLiteral("-browse"));

            press(dialog.get(), ControlName(form, "cmd", "Add").c_str());
            auto* name = dialog->findChild<QLineEdit*>(form.variant == EditorVariant::Hose
                                                           ? QStringLiteral("txtHoseSize")
                                                           : QString::fromStdString(ControlName(form, "txt", "Name")));
            QTest::keyClicks(name,
                             form.variant == EditorVariant::Hose ? QStringLiteral("2") : QStringLiteral("Custom one"));
            typeTable(gridOf(dialog.get()), {{"5", "100"}, {"10", "180"}, {"15", "250"}});
            checkShot(dialog.get(), base + QStringLiteral("-adding"));

            if (form.variant == EditorVariant::Pump) {
                clickOption(dialog.get(), "optPump50");
                checkShot(dialog.get(), base + QStringLiteral("-50hz"));
            } else {
                clickOption(dialog.get(), ControlName(form, "opt", "PSI").c_str());
                checkShot(dialog.get(), base + QStringLiteral("-psi"));
            }
            closeWithoutSaving(station, dialog.get());
        }
        QVERIFY(station.ui.shown.size() == editorForms.size()); // only the save questions
    }

  private:
    static void checkShot(QWidget* dialog, const QString& name) {
        const QString path = saveScreenshot(dialog, name);
        QVERIFY(QFileInfo::exists(path));
        const QImage image(path);
        QVERIFY(image.width() >= 600 && image.height() >= 400);
    }
};

} // namespace vesk::gui::test

QTEST_MAIN(vesk::gui::test::EditorScreenshotsTest)
#include "editor_screenshots_test.moc"
