// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Update dialog, frmUpdate: a maker's component file merged into the program's own.
#include "gui/workbench/update_dialog.h"

#include "gui/workbench/area_widgets.h"
#include "workbench/update_data.h"

#include <QFile>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vesk::gui {

namespace {

QString latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

UpdateDialog::UpdateDialog(WindowContext& context, QWidget* parent)
    : QDialog(parent), m_context(context), m_txtFilePath(named(new QLineEdit, "txtFilePath")) {
    setObjectName(QStringLiteral("frmUpdate"));
    setWindowTitle(latin(updateCaption));
    setModal(true);

    // The box shows the path that Browse chose; it is not typed into.
    m_txtFilePath->setReadOnly(true);
    auto* cmdBrowse = named(new QPushButton(QStringLiteral("&Browse")), "cmdBrowse");
    auto* cmdUpdate = named(new QPushButton(QStringLiteral("Update")), "cmdUpdate");
    connect(cmdBrowse, &QPushButton::clicked, this, &UpdateDialog::pressBrowse);
    connect(cmdUpdate, &QPushButton::clicked, this, &UpdateDialog::pressUpdate);

    auto* pathRow = new QHBoxLayout;
    pathRow->addWidget(m_txtFilePath, 1);
    pathRow->addWidget(cmdBrowse);

    auto* fraUpdateHelp = named(new QGroupBox(QStringLiteral("Help")), "fraUpdateHelp");
    auto* lblUpdateHelp = named(new QLabel(latin(updateHelpText)), "lblUpdateHelp");
    lblUpdateHelp->setWordWrap(true);
    auto* helpLayout = new QVBoxLayout(fraUpdateHelp);
    helpLayout->addWidget(lblUpdateHelp);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdUpdate);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption(latin(updateFileLabel)));
    layout->addLayout(pathRow);
    layout->addLayout(buttons);
    layout->addWidget(fraUpdateHelp);
    setMinimumWidth(480);
}

void UpdateDialog::pressBrowse() {
    m_context.runEvent([this] {
        if (const std::optional<std::string> chosen = BrowseUpdateFile(m_context.ui)) {
            m_selectedPath = *chosen;
            // Paths are the file system's own bytes.
            m_txtFilePath->setText(QFile::decodeName(chosen->c_str()));
        }
    });
}

void UpdateDialog::pressUpdate() {
    UpdateEnd end = UpdateEnd::Closes;
    if (!m_context.runEvent([this, &end] { end = UpdateFromDialog(m_context.app, m_selectedPath, m_context.ui); })) {
        reject();
        return;
    }
    switch (end) {
    case UpdateEnd::Stays:
        return;
    case UpdateEnd::Merged:
        m_merged = true;
        accept();
        return;
    case UpdateEnd::Closes:
        reject();
        return;
    }
}

bool ShowUpdate(QWidget* parent, WindowContext& context) {
    UpdateDialog dialog(context, parent);
    dialog.exec();
    return dialog.merged();
}

} // namespace vesk::gui
