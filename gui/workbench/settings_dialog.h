// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The System Settings dialog, frmData: fuel, component list and units.
#pragma once

#include "workbench/application_state.h"

#include <QDialog>

class QRadioButton;
class QLabel;
class QPushButton;

namespace vesk::gui {

inline constexpr const char* settingsHelpText =
    "All the operations of Vesk will be performed on the basis of the selection of Component List, Data and "
    "Units. If user select American in Component List, Gas in Data and US in Units, in all the site area the "
    "component which is having American component list and Gas type will be shown";

// Its load takes the options of panel.frmData, loading them from the settings
// first unless a site read has left the dialog loaded. Ok copies the option
// buttons back and applies them; Cancel, Escape and the close box unload the
// dialog and change nothing else.
class SettingsDialog : public QDialog {
    Q_OBJECT

  public:
    SettingsDialog(ApplicationState& app, QWidget* parent = nullptr);

    // cmdOk: the option buttons into panel.frmData, then ApplySystemSettings.
    void pressOk();
    // Whether the Ok that closed the dialog asks the graph to be re-plotted.
    bool replotRequested() const { return m_replot; }

    void reject() override;

  private:
    void showOptions(const FrmDataOptions& options);
    FrmDataOptions optionsShown() const;

    ApplicationState& m_app;
    bool m_replot = false;

    QRadioButton* m_optAmerican;
    QRadioButton* m_optInternational;
    QRadioButton* m_optCommercial;
    QRadioButton* m_optGas;
    QRadioButton* m_optDiesel;
    QRadioButton* m_optUS;
    QRadioButton* m_optMetric;
};

} // namespace vesk::gui
