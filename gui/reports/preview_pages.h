// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The three pages of the print preview (frmPrint, frmCompare, frmComponentList) and their chain.
#pragma once

#include "reports/report_page.h"
#include "reports/sheet_grid.h"
#include "workbench/application_state.h"

#include "messages/user_interaction.h"

#include <QDialog>
#include <QSize>
#include <optional>

class QLabel;
class QTableWidget;

namespace vesk::gui {

class LabelButton;

// A page of the preview: modal, loaded anew each time it is shown, with the
// label buttons of its page. A label unloads the page (the dialog closes) and
// the chain goes on from the label pressed.
class PreviewPageDialog : public QDialog {
    Q_OBJECT

  public:
    PreviewPageDialog(PreviewPage page, QWidget* parent);
    PreviewPage page() const { return m_page; }
    // The label that unloaded the page; none when it was closed otherwise.
    std::optional<PreviewLabel> pressedLabel() const { return m_pressed; }
    LabelButton* labelButton(PreviewLabel label) const;

  protected:
    // The row of label buttons, in the order of the page's table.
    QWidget* labelBar();

  private:
    PreviewPage m_page;
    std::optional<PreviewLabel> m_pressed;
    std::vector<std::pair<PreviewLabel, LabelButton*>> m_buttons;
};

// frmPrint: the head of the report, the picture of the flow graph and the two
// pump legends. Loading it renders the chart to a picture of the chart's
// width and its height less 1000 twips, writes that picture to "pic1.bmp" in
// the program folder and loads it back (a folder that cannot take the file
// fails with "Path/File access error"). The clipboard is never touched.
class ReportPageDialog : public PreviewPageDialog {
    Q_OBJECT
  public:
    ReportPageDialog(ApplicationState& app, QSize chartPixels, QWidget* parent);
};

// frmCompare: flxCompare, one row per number of nozzles.
class CompareDialog : public PreviewPageDialog {
    Q_OBJECT
  public:
    CompareDialog(ApplicationState& app, QWidget* parent);
};

// frmComponentList: flxComponentPrint, the two input grids side by side.
class ComponentListDialog : public PreviewPageDialog {
    Q_OBJECT
  public:
    ComponentListDialog(ApplicationState& app, QWidget* parent);
};

// Shows a grid of the reports in a table widget: sizes from twips, merged
// rows as spans, alignments and the grid's bold font.
void ShowSheetGrid(QTableWidget* table, const SheetGrid& grid);

// File > Print Preview (mnuPreview_Click): the pages one after another, each
// modal, as their labels lead; Print on the first page closes it, then runs
// File > Print. `chartPixels` is the size of the main window's chart.
void ShowPrintPreview(QWidget* parent, ApplicationState& app, UserInteraction& ui, QSize chartPixels);

// File > Print (mnuPrint_Click) on the printers of the desktop.
void PrintReportCommand(ApplicationState& app, UserInteraction& ui);

// The pump panel's Print (cmdPrintPump_Click).
void PrintPumpCurveCommand(ApplicationState& app, UserInteraction& ui);

} // namespace vesk::gui
