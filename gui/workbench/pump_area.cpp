// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The Pump Area: the pump, its frequency and quantity, the leak detector, others, and the pump curve.
#include "gui/common/chart_adapter.h"
#include "gui/reports/preview_pages.h"
#include "gui/workbench/area_widgets.h"
#include "gui/workbench/areas.h"
#include "gui/workbench/recommendation_lists.h"
#include "workbench/pump_curve.h"

#include <QChartView>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vesk::gui {

PumpArea::PumpArea(WindowContext& context, PanelControls& controls)
    : m_context(context), m_controls(controls), m_opt50Hz(named(new QRadioButton(QStringLiteral("50 Hz")), "opt50Hz")),
      m_opt60Hz(named(new QRadioButton(QStringLiteral("60 Hz")), "opt60Hz")),
      m_msChart2(MakeChartView("MSChart2", m_pumpCurveChart, this)), m_lstPump(named(new QListWidget, "lstPump")) {
    nameAreaFrame(*this, Area::Pump);
    m_opt50Hz->setToolTip(QStringLiteral("50 Hz Pumps will be shown in the Available Pumps list"));
    m_opt60Hz->setToolTip(QStringLiteral("60 Hz Pumps will be shown in the Available Pumps list"));

    auto* frequencies = new QWidget;
    auto* frequencyLayout = new QHBoxLayout(frequencies);
    frequencyLayout->setContentsMargins(0, 0, 0, 0);
    frequencyLayout->addWidget(m_opt50Hz);
    frequencyLayout->addWidget(m_opt60Hz);
    frequencyLayout->addStretch(1);
    frequencyLayout->addWidget(caption(QStringLiteral("Qty")));
    frequencyLayout->addWidget(controls.list("cmbQuantity"));

    auto* grid = new QGridLayout;
    grid->addWidget(caption(QStringLiteral("Available Pumps")), 0, 0);
    grid->addWidget(controls.list("cmbPumps"), 0, 1);
    grid->addWidget(frequencies, 1, 1);
    grid->addWidget(caption(QStringLiteral("Leak Detector")), 2, 0);
    grid->addWidget(controls.list("cmbLeak"), 2, 1);
    grid->addWidget(caption(QStringLiteral("Others")), 3, 0);
    grid->addWidget(controls.list("cmbPumpOthers"), 3, 1);
    grid->setColumnStretch(1, 1);

    for (QRadioButton* option : {m_opt50Hz, m_opt60Hz}) {
        const bool fiftyHz = option == m_opt50Hz;
        connect(option, &QRadioButton::clicked, this, [this, option, fiftyHz] {
            if (!option->isChecked()) {
                return; // only an option that is on refills the list
            }
            ApplicationState& app = m_context.app;
            if (m_context.runEvent([&] { ClickFrequencyOption(app.panel, app.catalogues, app.config, fiftyHz); })) {
                refresh();
            }
        });
        controls.watchFocus(option);
    }

    auto* lblPumpCurve = named(new QLabel(QString::fromLatin1(pumpCurveTitle)), "lblPumpCurve");
    m_msChart2->setMinimumHeight(250);
    auto* cmdUpdate = named(new QPushButton(QStringLiteral("Update Graph")), "cmdUpdate");
    auto* cmdPrintPump = named(new QPushButton(QStringLiteral("Print")), "cmdPrintPump");
    connect(cmdUpdate, &QPushButton::clicked, this, &PumpArea::updatePumpCurve);
    connect(cmdPrintPump, &QPushButton::clicked, this,
            [this] { m_context.runEvent([this] { PrintPumpCurveCommand(m_context.app, m_context.ui); }); });
    auto* curveButtons = new QHBoxLayout;
    curveButtons->addWidget(lblPumpCurve, 1);
    curveButtons->addWidget(cmdUpdate);
    curveButtons->addWidget(cmdPrintPump);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addLayout(curveButtons);
    layout->addWidget(m_msChart2, 1);
    layout->addWidget(recommendation("cmdPumpRecom", "txtRecommendPump", m_lstPump));
    WireRecommendationList(m_lstPump, RecommendationList::Pump, context, [this] { refresh(); });
    layout->addWidget(helpFrame(Area::Pump));
}

void PumpArea::refresh() {
    showOption(m_opt50Hz, m_context.app.panel.opt50Hz);
    showOption(m_opt60Hz, m_context.app.panel.opt60Hz);
    m_controls.showArea(Area::Pump);
}

void PumpArea::updatePumpCurve() {
    ApplicationState& app = m_context.app;
    if (m_context.runEvent([&] { UpdatePumpCurve(app.pumpCurve, app.panel, app.config, app.catalogues); })) {
        refreshPumpCurve();
    }
}

void PumpArea::refreshPumpCurve() {
    ShowPumpCurve(*m_pumpCurveChart, m_context.app.pumpCurve);
}

} // namespace vesk::gui
