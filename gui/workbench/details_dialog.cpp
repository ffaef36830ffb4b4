// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The System Headloss Details dialog, frmDetails: the head loss by component.
#include "gui/workbench/details_dialog.h"

#include "gui/common/text_codec.h"
#include "gui/workbench/dialogs.h"
#include "workbench/details_view.h"

#include "engine/flow_sweep.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace vesk::gui {

namespace {

QLabel* captionLabel(const DetailsLine& line, QWidget* parent) {
    auto* label = new QLabel(fromWindows1252(line.caption), parent);
    label->setObjectName(fromWindows1252(line.captionControl));
    return label;
}

// A value in a sunken box, right-aligned like a figure in a table.
QLabel* valueLabel(const DetailsLine& line, QWidget* parent) {
    auto* label = new QLabel(QStringLiteral("0.0"), parent);
    label->setObjectName(fromWindows1252(line.valueControl));
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setMinimumWidth(80);
    label->setText(fromWindows1252(line.value));
    return label;
}

} // namespace

DetailsDialog::DetailsDialog(ApplicationState& app, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmDetails"));
    setWindowTitle(QString::fromLatin1(detailsCaption));
    setModal(true);

    const std::array<DetailsLine, detailsLineCount> lines = LoadDetails(app);

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    int row = 0;
    for (const DetailsLine& line : lines) {
        grid->addWidget(captionLabel(line, this), row, 0);
        grid->addWidget(valueLabel(line, this), row, 1);
        ++row;
    }

    auto* cmdClose = new QPushButton(QStringLiteral("Close"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdClose);
    buttons->addStretch();

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addSpacing(8);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);

    connect(cmdClose, &QPushButton::clicked, this, &DetailsDialog::accept);
}

void ShowDetails(QWidget* parent, ApplicationState& app) {
    DetailsDialog dialog(app, parent);
    dialog.exec();
}

} // namespace vesk::gui
