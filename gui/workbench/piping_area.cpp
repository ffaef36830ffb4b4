// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Piping Area: material, branch and trunk with their fittings and valves, or one pipe in the Basic mode.
#include "gui/workbench/area_widgets.h"
#include "gui/workbench/areas.h"
#include "workbench/panel_events.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>
#include <string>

namespace vesk::gui {

namespace {

// The size, the length and the four fittings of a branch or a trunk.
QGridLayout* pipeFrame(PanelControls& controls, QGroupBox* box, const char* sizeName, const char* lengthName,
                       const char* fittingStem) {
    auto* grid = new QGridLayout(box);
    grid->addWidget(caption(QStringLiteral("Size")), 0, 0);
    grid->addWidget(controls.list(sizeName), 0, 1, 1, 3);
    grid->addWidget(controls.unitLabel(lengthName), 1, 0);
    grid->addWidget(controls.field(lengthName), 1, 1, 1, 3);
    const char* fittingCaptions[] = {"45 Elbow", "90 Elbow", "Thru T", "Side T"};
    for (int index = 0; index < 4; ++index) {
        const std::string name = std::string(fittingStem) + "(" + std::to_string(index) + ")";
        grid->addWidget(caption(QString::fromLatin1(fittingCaptions[index])), 2 + index / 2, (index % 2) * 2);
        grid->addWidget(controls.field(name.c_str()), 2 + index / 2, (index % 2) * 2 + 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return grid;
}

Qt::CheckState checkStateOf(Integer value) {
    return value == 1 ? Qt::Checked : value == 0 ? Qt::Unchecked : Qt::PartiallyChecked;
}

} // namespace

PipingArea::PipingArea(WindowContext& context, PanelControls& controls)
    : m_context(context), m_controls(controls),
      m_optBasic(named(new QRadioButton(QStringLiteral("Basic")), "optBasic")),
      m_optAdvance(named(new QRadioButton(QStringLiteral("Advance")), "optAdvance")),
      m_fraBranch(frame("fraBranch", "Branch Info")), m_fraTrunk(frame("fraTrunk", "Trunk Info")),
      m_fraPipeInfo(frame("fraPipeInfo", "PipeInfo")),
      m_chkBall(named(new QCheckBox(QStringLiteral("Ball Valve")), "chkBall")),
      m_chkSwing(named(new QCheckBox(QStringLiteral("Swing Check")), "chkSwing")) {
    nameAreaFrame(*this, Area::Piping);

    auto* modes = new QWidget;
    auto* modeLayout = new QHBoxLayout(modes);
    modeLayout->setContentsMargins(0, 0, 0, 0);
    modeLayout->addWidget(m_optBasic);
    modeLayout->addWidget(m_optAdvance);
    modeLayout->addStretch(1);
    auto* top = new QGridLayout;
    top->addWidget(modes, 0, 0, 1, 2);
    top->addWidget(caption(QStringLiteral("Piping Type")), 1, 0);
    top->addWidget(controls.list("cmbPiping"), 1, 1);
    top->setColumnStretch(1, 1);

    pipeFrame(controls, m_fraBranch, "cmbBranch", "txtBranchLength", "txtBranchFitting");
    QGridLayout* trunkGrid = pipeFrame(controls, m_fraTrunk, "cmbTrunk", "txtTrunkLength", "txtTrunkFitting");
    trunkGrid->addWidget(m_chkBall, 4, 0, 1, 2);
    trunkGrid->addWidget(m_chkSwing, 4, 2, 1, 2);

    auto* pipeGrid = new QGridLayout(m_fraPipeInfo);
    pipeGrid->addWidget(caption(QStringLiteral("Size")), 0, 0);
    pipeGrid->addWidget(controls.list("cmbPipeSize"), 0, 1);
    pipeGrid->addWidget(controls.unitLabel("txtPipeLen"), 1, 0);
    pipeGrid->addWidget(controls.field("txtPipeLen"), 1, 1);
    pipeGrid->setColumnStretch(1, 1);

    for (QRadioButton* option : {m_optBasic, m_optAdvance}) {
        const bool basic = option == m_optBasic;
        connect(option, &QRadioButton::clicked, this, [this, basic] {
            ChoosePipingMode(m_context.app.panel, basic);
            showPipingMode();
        });
    }
    controls.watchFocus(m_optBasic);
    // The click handlers of the valve boxes do nothing: the boxes are read at
    // calculation.
    connect(m_chkBall, &QCheckBox::stateChanged, this,
            [this](int state) { m_context.app.panel.chkBall = static_cast<Integer>(state == Qt::Checked ? 1 : 0); });
    connect(m_chkSwing, &QCheckBox::stateChanged, this,
            [this](int state) { m_context.app.panel.chkSwing = static_cast<Integer>(state == Qt::Checked ? 1 : 0); });

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_fraBranch);
    layout->addWidget(m_fraTrunk);
    layout->addWidget(m_fraPipeInfo);
    layout->addWidget(recommendation("cmdPipingRecom", "txtRecommendPiping", nullptr));
    layout->addStretch(1);
    layout->addWidget(helpFrame(Area::Piping));
}

void PipingArea::refresh() {
    m_controls.showArea(Area::Piping);
    m_chkBall->setCheckState(checkStateOf(m_context.app.panel.chkBall));
    m_chkSwing->setCheckState(checkStateOf(m_context.app.panel.chkSwing));
    showPipingMode();
}

void PipingArea::showPipingMode() {
    const PanelState& panel = m_context.app.panel;
    showOption(m_optBasic, panel.optBasic);
    showOption(m_optAdvance, panel.optAdvance);
    const bool basic = panel.optBasic && !panel.optAdvance;
    m_fraPipeInfo->setVisible(basic);
    m_fraBranch->setVisible(!basic);
    m_fraTrunk->setVisible(!basic);
}

} // namespace vesk::gui
