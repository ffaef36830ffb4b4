// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The three pages of the print preview (frmPrint, frmCompare, frmComponentList) and their chain.
#include "gui/reports/preview_pages.h"

#include "gui/common/chart_adapter.h"
#include "gui/common/text_codec.h"
#include "gui/reports/chart_picture.h"
#include "gui/reports/label_button.h"
#include "gui/reports/qt_sheet_printer.h"
#include "gui/reports/sheet_painter.h"
#include "reports/compare_table.h"
#include "reports/component_list.h"
#include "reports/print_report.h"

#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QTableWidget>
#include <QVBoxLayout>
#include <memory>

namespace vesk::gui {

namespace {

constexpr int pageMargin = 16;

int pixels(Long twips) {
    return static_cast<int>(twips / twipsPerPixel);
}

QRect pixelRect(const TwipsRect& rect) {
    return QRect(pixels(rect.x), pixels(rect.y), pixels(rect.width), pixels(rect.height));
}

template <class Widget> Widget* named(Widget* widget, const QString& name) {
    widget->setObjectName(name);
    return widget;
}

QString arrayName(const char* name, std::size_t index) {
    return QStringLiteral("%1(%2)").arg(QString::fromLatin1(name)).arg(index);
}

// The paper of frmPrint: white, with the logos and the rules painted on it.
class ReportPaper : public QWidget {
  public:
    using QWidget::QWidget;

  protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.translate(pageMargin, pageMargin);
        painter.scale(1 / twipsPerPixel, 1 / twipsPerPixel);
        const ReportFormLayout& l = reportFormLayout;
        PaintLogo(painter, toQRect(l.Picture1), 0);
        PaintLogo(painter, toQRect(l.Picture2), 1);
        painter.setPen(QPen(reportInk, 20));
        for (const Long y : {l.headRuleY, l.blockRuleY}) {
            painter.drawLine(QPointF(0, y), QPointF(l.width, y));
        }
    }
};

QLabel* placedLabel(QWidget* paper, const QString& name, const QString& text, const QRect& box, int points, bool bold,
                    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter) {
    auto* label = named(new QLabel(text, paper), name);
    QFont font = label->font();
    font.setPointSize(points);
    font.setBold(bold);
    label->setFont(font);
    label->setAlignment(alignment);
    label->setGeometry(box.translated(pageMargin, pageMargin));
    return label;
}

// The block of site or report texts: heading, five captions, five values.
void placeBlock(QWidget* paper, bool reportBlock, const char* heading, const std::array<const char*, 5>& captions,
                const char* valueName, const std::array<std::string, 5>& values) {
    const ReportFormLayout& l = reportFormLayout;
    const char* captionName = reportBlock ? "lblReport" : "lblSiteInfo";
    placedLabel(paper, QString::fromLatin1(captionName), QString::fromLatin1(heading),
                pixelRect(reportBlock ? l.lblReportHeading : l.lblSiteInfoHeading), 11, true)
        ->setStyleSheet(QStringLiteral("color: #174a7c"));
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const auto row = static_cast<Long>(i);
        placedLabel(paper, arrayName(captionName, i), QString::fromLatin1(captions[i]),
                    pixelRect(l.fieldCaption(reportBlock, row)), 9, false)
            ->setStyleSheet(QStringLiteral("color: #5a5a5a"));
        placedLabel(paper, arrayName(valueName, i), fromWindows1252(values[i]),
                    pixelRect(l.fieldValue(reportBlock, row)), 9, false);
    }
}

// The chart of the main window as a picture of the given size.
QImage flowGraphPicture(const FlowChart& chart, QSize size) {
    ChartPicture picture(size);
    picture.adapter().setTitle(QString::fromLatin1(flowChartTitle));
    ShowFlowChart(picture.adapter(), chart);
    return picture.image();
}

// Steps 4 and 5 of the load: the picture saved in the program folder as
// "pic1.bmp", overwriting it, and loaded back from there. The file stays.
QPixmap throughPic1Bmp(const QImage& picture, const std::filesystem::path& programFolder) {
    const QString file = QFile::decodeName(Pic1BmpPath(programFolder).c_str());
    if (!picture.save(file, "BMP")) {
        fail(fileAccessFailure);
    }
    QPixmap loaded;
    if (!loaded.load(file, "BMP")) {
        fail(fileAccessFailure);
    }
    return loaded;
}

} // namespace

// ---------------------------------------------------------------- a page

PreviewPageDialog::PreviewPageDialog(PreviewPage page, QWidget* parent) : QDialog(parent), m_page(page) {
    setModal(true);
}

QWidget* PreviewPageDialog::labelBar() {
    auto* bar = new QWidget;
    auto* layout = new QHBoxLayout(bar);
    layout->addStretch(1);
    for (const PreviewLabel label : PreviewLabelsOf(m_page)) {
        auto* button = named(new LabelButton(QString::fromLatin1(PreviewLabelCaption(label))),
                             QString::fromLatin1(PreviewLabelName(label)));
        layout->addWidget(button);
        m_buttons.emplace_back(label, button);
        connect(button, &LabelButton::clicked, this, [this, label] {
            m_pressed = label;
            accept(); // the page unloads before the chain goes on
        });
    }
    return bar;
}

LabelButton* PreviewPageDialog::labelButton(PreviewLabel label) const {
    for (const auto& [own, button] : m_buttons) {
        if (own == label) {
            return button;
        }
    }
    return nullptr;
}

// ---------------------------------------------------------------- frmPrint

ReportPageDialog::ReportPageDialog(ApplicationState& app, QSize chartPixels, QWidget* parent)
    : PreviewPageDialog(PreviewPage::frmPrint, parent) {
    setObjectName(QStringLiteral("frmPrint"));
    setWindowTitle(QStringLiteral("Print Preview"));

    const PictureSize picSize = PicGraphSize(static_cast<Long>(chartPixels.width() * twipsPerPixel),
                                             static_cast<Long>(chartPixels.height() * twipsPerPixel));
    const QSize picPixels(std::max(pixels(picSize.widthTwips), 1), std::max(pixels(picSize.heightTwips), 1));
    const QPixmap graph = throughPic1Bmp(flowGraphPicture(app.flowChart.chart, picPixels), app.programFolder);

    const ReportHeads heads = LoadReportHeads(app.flowChart, app.siteProperties);
    const ReportFormLayout& l = reportFormLayout;
    auto* paper = named(new ReportPaper, QStringLiteral("fraPage"));
    placedLabel(paper, QStringLiteral("Label1"), QString::fromLatin1(reportTitle), pixelRect(l.Label1), 20, true,
                Qt::AlignCenter)
        ->setStyleSheet(QStringLiteral("color: #174a7c"));
    placedLabel(paper, QStringLiteral("Label4"), QString::fromLatin1(supportLine), pixelRect(l.Label4), 8, false,
                Qt::AlignCenter);
    named(new QWidget(paper), QStringLiteral("Picture1"))
        ->setGeometry(pixelRect(l.Picture1).translated(pageMargin, pageMargin));
    named(new QWidget(paper), QStringLiteral("Picture2"))
        ->setGeometry(pixelRect(l.Picture2).translated(pageMargin, pageMargin));
    placeBlock(paper, false, siteInfoHeading, siteInfoCaptions, "lblSiteData", heads.lblSiteData);
    placeBlock(paper, true, reportHeading, reportCaptions, "lblReportData", heads.lblReportData);

    const int graphTop = pixels(l.chart.y);
    auto* picGraph = named(new QLabel(paper), QStringLiteral("picGraph"));
    picGraph->setPixmap(graph);
    picGraph->setGeometry(pageMargin, pageMargin + graphTop, graph.width(), graph.height());
    const int legendTop = graphTop + graph.height() + 8;
    const int half = std::max(pixels(l.width), graph.width()) / 2;
    placedLabel(paper, QStringLiteral("lblCurrentPumpPrint"), fromWindows1252(heads.lblCurrentPumpPrint),
                QRect(0, legendTop, half - 8, 22), 9, false);
    placedLabel(paper, QStringLiteral("lblBaselinePumpPrint"), fromWindows1252(heads.lblBaselinePumpPrint),
                QRect(half, legendTop, half - 8, 22), 9, false);
    paper->setFixedSize(std::max(pixels(l.width), graph.width()) + 2 * pageMargin, legendTop + 22 + 2 * pageMargin);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(paper);
    layout->addWidget(labelBar());
}

// ---------------------------------------------------------------- the grids

void ShowSheetGrid(QTableWidget* table, const SheetGrid& grid) {
    table->clear();
    table->setRowCount(static_cast<int>(grid.Rows()));
    table->setColumnCount(static_cast<int>(grid.Cols()));
    table->horizontalHeader()->hide();
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setWordWrap(false);
    QFont font = table->font();
    font.setBold(grid.fontBold);
    table->setFont(font);
    for (long column = 0; column < grid.Cols(); ++column) {
        const int c = static_cast<int>(column);
        table->setColumnWidth(c, pixels(grid.ColWidth(column)));
        table->setColumnHidden(c, grid.ColWidth(column) <= hiddenSizeTwips);
    }
    for (long row = 0; row < grid.Rows(); ++row) {
        const int r = static_cast<int>(row);
        table->setRowHeight(r, std::max(pixels(grid.RowHeight(row)), table->fontMetrics().height() + 4));
        table->setRowHidden(r, grid.RowHeight(row) <= hiddenSizeTwips);
        for (long column = 0; column < grid.Cols(); ++column) {
            auto* item = new QTableWidgetItem(fromWindows1252(grid.TextMatrix(row, column)));
            item->setTextAlignment(grid.ColAlignment(column) == CellAlignment::CenterCenter
                                       ? Qt::AlignCenter
                                       : Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
            table->setItem(r, static_cast<int>(column), item);
        }
        for (const MergedSpan& span : RowSpans(grid, row)) {
            if (span.last > span.first) {
                table->setSpan(r, static_cast<int>(span.first), 1, static_cast<int>(span.last - span.first + 1));
            }
        }
    }
}

namespace {

QTableWidget* gridPage(PreviewPageDialog* page, const char* gridName, const SheetGrid& grid) {
    auto* table = named(new QTableWidget, QString::fromLatin1(gridName));
    ShowSheetGrid(table, grid);
    table->setMinimumWidth(pixels(grid.WidthTwips()) + 24);
    table->setMinimumHeight(420);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(table, 1);
    return table;
}

} // namespace

CompareDialog::CompareDialog(ApplicationState& app, QWidget* parent)
    : PreviewPageDialog(PreviewPage::frmCompare, parent) {
    setObjectName(QStringLiteral("frmCompare"));
    setWindowTitle(QStringLiteral("Print Preview"));
    const bool optUS = TouchFrmData(app.panel, app.config).optUS;
    gridPage(this, "flxCompare", LoadCompareGrid(app.results.Current, app.results.Baseline, app.NoOfNozzles, optUS));
    layout()->addWidget(labelBar());
}

ComponentListDialog::ComponentListDialog(ApplicationState& app, QWidget* parent)
    : PreviewPageDialog(PreviewPage::frmComponentList, parent) {
    setObjectName(QStringLiteral("frmComponentList"));
    setWindowTitle(QStringLiteral("Print Preview"));
    QTableWidget* table = gridPage(this, "flxComponentPrint", LoadComponentList(app.flxCurrent, app.flxBaseLine));
    table->setMinimumHeight(560);
    // The tool tip of the current cell, as on the input grids.
    connect(table, &QTableWidget::currentCellChanged, table, [table](int row, int column) {
        table->setToolTip(QString());
        if (const QTableWidgetItem* item = table->item(row, column)) {
            table->setToolTip(fromWindows1252(CellToolTip(toWindows1252(item->text()))));
        }
    });
    layout()->addWidget(labelBar());
}

// ---------------------------------------------------------------- the commands

void ShowPrintPreview(QWidget* parent, ApplicationState& app, UserInteraction& ui, QSize chartPixels) {
    std::optional<PreviewPage> page = PreviewPage::frmPrint;
    while (page) {
        std::unique_ptr<PreviewPageDialog> dialog;
        switch (*page) {
        case PreviewPage::frmPrint:
            dialog = std::make_unique<ReportPageDialog>(app, chartPixels, parent);
            break;
        case PreviewPage::frmCompare:
            dialog = std::make_unique<CompareDialog>(app, parent);
            break;
        case PreviewPage::frmComponentList:
            dialog = std::make_unique<ComponentListDialog>(app, parent);
            break;
        }
        dialog->exec();
        const std::optional<PreviewLabel> label = dialog->pressedLabel();
        const PreviewPage shown = *page;
        dialog.reset(); // the page is unloaded before the next one loads
        if (!label) {
            return; // the close box or Escape: the page unloads
        }
        const std::optional<PreviewStep> step = PreviewStepOf(shown, *label);
        if (step && step->print) {
            PrintReportCommand(app, ui);
            return;
        }
        page = step ? step->next : std::nullopt;
    }
}

void PrintReportCommand(ApplicationState& app, UserInteraction& ui) {
    QtSheetPrinter printer;
    PrintReport(app, ui, printer);
}

void PrintPumpCurveCommand(ApplicationState& app, UserInteraction& ui) {
    QtSheetPrinter printer;
    PrintPumpCurve(app, ui, printer);
}

} // namespace vesk::gui
