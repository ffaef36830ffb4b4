// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The About dialog, frmAbout: the program's name and version.
#include "gui/workbench/about_dialog.h"

#include "gui/workbench/dialogs.h"
#include "vesk_version.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vesk::gui {

QString versionText() {
    return QStringLiteral("Version %1.%2").arg(VESK_VERSION_MAJOR).arg(VESK_VERSION_MINOR);
}

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("About Vesk"));
    setModal(true);

    auto* lblVersion = new QLabel(QStringLiteral("Vesk ") + versionText(), this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    QFont font = lblVersion->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setBold(true);
    lblVersion->setFont(font);
    lblVersion->setAlignment(Qt::AlignCenter);

    auto* cmdAboutOK = new QPushButton(QStringLiteral("OK"), this);
    cmdAboutOK->setObjectName(QStringLiteral("cmdAboutOK"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdAboutOK);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 16);
    layout->addWidget(lblVersion);
    layout->addSpacing(24);
    layout->addLayout(buttons);
    setMinimumWidth(320);

    connect(cmdAboutOK, &QPushButton::clicked, this, &AboutDialog::accept);
}

void ShowAbout(QWidget* parent) {
    AboutDialog dialog(parent);
    dialog.exec();
}

} // namespace vesk::gui
