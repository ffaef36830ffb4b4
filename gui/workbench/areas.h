// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The four areas of the main window's left part, one frame each.
#pragma once

#include "gui/workbench/panel_controls.h"

#include <QGroupBox>

class QCheckBox;
class QChartView;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;

namespace vesk::gui {

class ChartAdapter;

// Each area shows the panels' state in its controls on refresh().

class DispensingArea : public QGroupBox {
  public:
    DispensingArea(WindowContext& context, PanelControls& controls);
    void refresh();
    QListWidget* lstDispensing() const { return m_lstDispensing; }

  private:
    PanelControls& m_controls;
    QListWidget* m_lstDispensing;
};

class PipingArea : public QGroupBox {
  public:
    PipingArea(WindowContext& context, PanelControls& controls);
    void refresh();
    // The option buttons and the frames of the piping mode.
    void showPipingMode();

  private:
    WindowContext& m_context;
    PanelControls& m_controls;
    QRadioButton* m_optBasic;
    QRadioButton* m_optAdvance;
    QGroupBox* m_fraBranch;
    QGroupBox* m_fraTrunk;
    QGroupBox* m_fraPipeInfo;
    QCheckBox* m_chkBall;
    QCheckBox* m_chkSwing;
};

class PumpArea : public QGroupBox {
  public:
    PumpArea(WindowContext& context, PanelControls& controls);
    void refresh();
    void refreshPumpCurve();
    QListWidget* lstPump() const { return m_lstPump; }
    ChartAdapter& pumpCurveChart() const { return *m_pumpCurveChart; }

  private:
    void updatePumpCurve();

    WindowContext& m_context;
    PanelControls& m_controls;
    QRadioButton* m_opt50Hz;
    QRadioButton* m_opt60Hz;
    QChartView* m_msChart2;
    ChartAdapter* m_pumpCurveChart;
    QListWidget* m_lstPump;
};

class SiteLayoutArea : public QGroupBox {
  public:
    SiteLayoutArea(WindowContext& context, PanelControls& controls);
    void refresh();
    // Loads the site picture that the core names (SitePicture); a missing or
    // unreadable picture fails as the platform does.
    void loadSitePicture();
    QLineEdit* txtSiteRecommend() const { return m_txtSiteRecommend; }

  private:
    WindowContext& m_context;
    PanelControls& m_controls;
    QLabel* m_picSiteLayout;
    QLineEdit* m_txtSiteRecommend;
};

} // namespace vesk::gui
