// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Dispensing Area: dispenser, breakaway, hose, nozzle, others and the number of nozzles.
#include "gui/workbench/area_widgets.h"
#include "gui/workbench/areas.h"
#include "gui/workbench/recommendation_lists.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace vesk::gui {

DispensingArea::DispensingArea(WindowContext& context, PanelControls& controls)
    : m_controls(controls), m_lstDispensing(named(new QListWidget, "lstDispensing")) {
    nameAreaFrame(*this, Area::Dispensing);

    auto* grid = new QGridLayout;
    grid->addWidget(caption(QStringLiteral("Dispenser")), 0, 0);
    grid->addWidget(controls.list("cmbDispenser"), 0, 1, 1, 3);
    grid->addWidget(caption(QStringLiteral("Breakaway")), 1, 0);
    grid->addWidget(controls.list("cmbBreakAway"), 1, 1, 1, 3);
    grid->addWidget(caption(QStringLiteral("Hose Size")), 2, 0);
    grid->addWidget(controls.list("cmbHoseSize"), 2, 1);
    grid->addWidget(controls.unitLabel("txtHoseLen"), 2, 2);
    grid->addWidget(controls.field("txtHoseLen"), 2, 3);
    grid->addWidget(caption(QStringLiteral("Nozzle")), 3, 0);
    grid->addWidget(controls.list("cmbNozzle"), 3, 1, 1, 3);
    grid->addWidget(caption(QStringLiteral("Others")), 4, 0);
    grid->addWidget(controls.list("cmbDispOthers"), 4, 1, 1, 3);
    grid->addWidget(caption(QStringLiteral("No. of Nozzles")), 5, 0);
    grid->addWidget(controls.field("txtNoOfNozzle"), 5, 1);
    grid->addWidget(caption(QStringLiteral("Max no. of nozzles")), 5, 2);
    grid->addWidget(controls.field("txtMaxNozz"), 5, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(recommendation("cmdDispRecom", "txtRecommendDisp", m_lstDispensing));
    WireRecommendationList(m_lstDispensing, RecommendationList::Dispensing, context, [this] { refresh(); });
    layout->addStretch(1);
    layout->addWidget(helpFrame(Area::Dispensing));
}

void DispensingArea::refresh() {
    m_controls.showArea(Area::Dispensing);
}

} // namespace vesk::gui
