// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The dialog of a component editor, one class for the eight kinds, showing the editor's state and forwarding its
// events.
#include "gui/editors/component_editor_dialog.h"

#include "gui/common/field_filters.h"
#include "gui/common/text_codec.h"

#include <QApplication>
#include <QCheckBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <utility>

namespace vesk::gui {

namespace {

QString latin(std::string_view text) {
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

// An option button whose checked state only the editor sets: a click asks the
// editor, and the editor's state is shown back.
QRadioButton* option(const QString& name, const QString& text) {
    auto* button = new QRadioButton(text);
    button->setObjectName(name);
    button->setAutoExclusive(false);
    return button;
}

void showOption(QRadioButton* button, const OptionControl& state) {
    if (button == nullptr) {
        return;
    }
    button->setChecked(state.value);
    button->setEnabled(state.enabled);
}

// Keys that move the current cell: the grid itself handles them.
bool isNavigationKey(int key) {
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true;
    default:
        return false;
    }
}

// Drops the keys that a box does not take, before the box sees them.
class KeyGate : public QObject {
  public:
    KeyGate(QLineEdit* field, std::function<bool(int)> passes) : QObject(field), m_passes(std::move(passes)) {
        field->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::KeyPress) {
            const std::optional<int> code = KeyCodeOf(*static_cast<QKeyEvent*>(event));
            return code && !m_passes(*code);
        }
        return false;
    }

  private:
    std::function<bool(int)> m_passes;
};

constexpr int deleteKeyCode = 46;
constexpr int deleteCharacterCode = 127;

} // namespace

ComponentEditorDialog::ComponentEditorDialog(ComponentKind kind, ApplicationState& app, EditorSession& session,
                                             UserInteraction& ui, EventRunner runEvent, QWidget* parent)
    : QDialog(parent), m_form(EditorFormOf(kind)), m_runEvent(std::move(runEvent)),
      m_editor(std::make_unique<ComponentEditor>(m_form, app, session, ui)) {
    setObjectName(latin(m_form.form));
    setWindowTitle(latin(m_form.caption));
    setModal(true);
    build();
    refresh();
}

ComponentEditorDialog::~ComponentEditorDialog() {
    // Hidden first: the focus leaving the boxes must not run their checks.
    m_refreshing = true;
    hide();
}

QString ComponentEditorDialog::name(std::string_view prefix, std::string_view role) const {
    return QString::fromStdString(ControlName(m_form, prefix, role));
}

// ---------------------------------------------------------------- building

void ComponentEditorDialog::build() {
    const bool hose = m_form.variant == EditorVariant::Hose;

    m_nameLabel = new QLabel(latin(m_form.nameCaption));
    m_nameLabel->setObjectName(latin(m_form.nameLabel));
    m_name = new QLineEdit;
    m_name->setObjectName(hose ? QStringLiteral("txtHoseSize") : name("txt", "Name"));
    m_nameLabel->setBuddy(m_name);
    m_list = new QListWidget;
    m_list->setObjectName(name("lst", "Names"));
    m_custom = new QCheckBox(QStringLiteral("Custom"));
    m_custom->setObjectName(name("chk", "Custom"));

    connect(m_list, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!m_refreshing) {
            run([this, row] { m_editor->selectListEntry(row); });
        }
    });
    connect(m_name, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_editor->setName(toWindows1252(text)); });
    new FieldFilter(m_name, {std::nullopt, [this] {
                                 bool back = false;
                                 if (!m_refreshing) {
                                     run([this, &back] { back = m_editor->nameLostFocus(); });
                                 }
                                 return back;
                             }});
    new KeyGate(m_name, [this](int code) { return m_editor->keyPassesInName(code); });

    auto* left = new QVBoxLayout;
    left->addWidget(m_nameLabel);
    left->addWidget(m_name);
    left->addWidget(m_list, 1);
    left->addWidget(m_custom);

    auto* middle = new QVBoxLayout;
    middle->addWidget(buildOptions());
    middle->addStretch(1);

    auto* top = new QHBoxLayout;
    top->addLayout(left, 5);
    top->addLayout(middle, 3);
    top->addWidget(buildGrid(), 4);

    auto* helpFrame = new QGroupBox(QStringLiteral("Help"));
    helpFrame->setObjectName(name("fra", "Help"));
    auto* helpText = new QLabel(latin(m_form.helpText));
    helpText->setObjectName(name("lbl", "Help"));
    helpText->setWordWrap(true);
    auto* helpLayout = new QVBoxLayout(helpFrame);
    helpLayout->addWidget(helpText);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top, 1);
    layout->addWidget(buildButtons());
    layout->addWidget(helpFrame);
    resize(800, 520);
}

QWidget* ComponentEditorDialog::buildOptions() {
    auto* box = new QWidget;
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto connectClick = [this](QRadioButton* button, void (ComponentEditor::*click)()) {
        connect(button, &QRadioButton::clicked, this, [this, click] {
            if (!m_refreshing) {
                run([this, click] { (m_editor.get()->*click)(); });
            }
        });
    };
    if (m_form.variant == EditorVariant::Pump) {
        m_pump50 = option(QStringLiteral("optPump50"), QStringLiteral("50Hz Pump"));
        m_pump60 = option(QStringLiteral("optPump60"), QStringLiteral("60Hz Pump"));
        connectClick(m_pump50, &ComponentEditor::clickPump50);
        connectClick(m_pump60, &ComponentEditor::clickPump60);
        layout->addWidget(m_pump50);
        layout->addWidget(m_pump60);
        return box;
    }
    m_fuelFrame = new QGroupBox(QStringLiteral("Fuel"));
    m_fuelFrame->setObjectName(name("fra", "Fuel"));
    m_gas = option(name("opt", "Gas"), QStringLiteral("Gas"));
    m_diesel = option(name("opt", "Diesel"), QStringLiteral("Diesel"));
    auto* fuel = new QVBoxLayout(m_fuelFrame);
    fuel->addWidget(m_gas);
    fuel->addWidget(m_diesel);
    m_headFrame = new QGroupBox(QStringLiteral("Head"));
    m_headFrame->setObjectName(name("fra", "Head"));
    m_feet = option(name("opt", "Feet"), QStringLiteral("Feet"));
    m_psi = option(name("opt", "PSI"), QStringLiteral("PSI"));
    auto* head = new QVBoxLayout(m_headFrame);
    head->addWidget(m_feet);
    head->addWidget(m_psi);
    connectClick(m_gas, &ComponentEditor::clickGas);
    connectClick(m_diesel, &ComponentEditor::clickDiesel);
    connectClick(m_feet, &ComponentEditor::clickFeet);
    connectClick(m_psi, &ComponentEditor::clickPsi);
    layout->addWidget(m_fuelFrame);
    layout->addWidget(m_headFrame);

    if (m_form.variant == EditorVariant::Hose) {
        m_hoseLengthLabel = new QLabel;
        m_hoseLengthLabel->setObjectName(QStringLiteral("lblHoseLength"));
        m_hoseLength = new QLineEdit;
        m_hoseLength->setObjectName(QStringLiteral("txtHoseLength"));
        m_hoseLengthLabel->setBuddy(m_hoseLength);
        m_hoseStandard = option(QStringLiteral("optHoseStandard"), QStringLiteral("Standard"));
        m_hoseCustomized = option(QStringLiteral("optHoseCustomized"), QStringLiteral("Customized"));
        connectClick(m_hoseStandard, &ComponentEditor::clickHoseStandard);
        connectClick(m_hoseCustomized, &ComponentEditor::clickHoseCustomized);
        connect(m_hoseLength, &QLineEdit::textEdited, this,
                [this](const QString& text) { m_editor->setHoseLength(toWindows1252(text)); });
        new FieldFilter(m_hoseLength, {std::nullopt, [this] {
                                           if (!m_refreshing) {
                                               run([this] { m_editor->hoseLengthLostFocus(); });
                                           }
                                           return false;
                                       }});
        new KeyGate(m_hoseLength, [this](int code) { return m_editor->keyPassesInHoseLength(code); });
        layout->addWidget(m_hoseStandard);
        layout->addWidget(m_hoseCustomized);
        layout->addWidget(m_hoseLengthLabel);
        layout->addWidget(m_hoseLength);
    }
    return box;
}

QWidget* ComponentEditorDialog::buildGrid() {
    auto* box = new QWidget;
    auto* layout = new QGridLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    m_gpmLabel = new QLabel;
    m_gpmLabel->setObjectName(name("lbl", "GPM"));
    m_tdhLabel = new QLabel;
    m_tdhLabel->setObjectName(name("lbl", "TDH"));
    m_grid = new QTableWidget(0, 2);
    m_grid->setObjectName(name("flx", ""));
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->setSelectionBehavior(QAbstractItemView::SelectItems);
    m_grid->setTabKeyNavigation(false);
    m_grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_grid->horizontalHeader()->hide();
    m_grid->verticalHeader()->hide();
    m_grid->verticalHeader()->setDefaultSectionSize(m_grid->fontMetrics().height() + 6);
    m_grid->installEventFilter(this);
    m_gpmLabel->setBuddy(m_grid);

    connect(m_grid, &QTableWidget::currentCellChanged, this, [this](int row, int col, int, int) {
        if (!m_refreshing && row >= 0 && col >= 0) {
            run([this, row, col] { m_editor->gridMoveTo(row, col); });
        }
    });
    connect(m_grid, &QTableWidget::cellClicked, this, [this](int, int) {
        if (!m_refreshing) {
            run([this] { m_editor->gridClick(); });
        }
    });

    layout->addWidget(m_gpmLabel, 0, 0, Qt::AlignHCenter);
    layout->addWidget(m_tdhLabel, 0, 1, Qt::AlignHCenter);
    layout->addWidget(m_grid, 1, 0, 1, 2);
    return box;
}

QWidget* ComponentEditorDialog::buildButtons() {
    auto* box = new QWidget;
    auto* layout = new QHBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto button = [this, layout](std::string_view role, const char* text) {
        auto* b = new QPushButton(QString::fromLatin1(text));
        b->setObjectName(name("cmd", role));
        b->setAutoDefault(false);
        layout->addWidget(b);
        return b;
    };
    m_add = button("Add", "Add");
    m_edit = button("Edit", "Edit");
    m_delete = button("Delete", "Delete");
    m_save = button("Save", "Save");
    m_clear = button("Clear", "Clear");
    layout->addStretch(1);
    m_ok = button("Ok", "Ok");
    m_cancel = button("Cancel", "Cancel");

    // These run on text the checks have seen: the focus moves to the button first.
    ConnectCheckedCommand(m_add, [this] { run([this] { m_editor->add(); }); });
    ConnectCheckedCommand(m_edit, [this] { run([this] { m_editor->edit(); }); });
    ConnectCheckedCommand(m_delete, [this] { run([this] { m_editor->deleteSelected(); }); });
    ConnectCheckedCommand(m_save, [this] { run([this] { m_editor->save(); }); });
    ConnectCheckedCommand(m_ok, [this] {
        m_okRan = true;
        run([this] { m_editor->ok(); });
    });
    // Clear and Cancel take the focus from a click only after the mouse going
    // down has told the editor to skip the check of the box being left (Qt
    // would move the focus before any filter sees the press). Tab still
    // reaches them.
    for (QPushButton* b : {m_clear, m_cancel}) {
        b->setFocusPolicy(Qt::TabFocus);
        b->installEventFilter(this);
    }
    connect(m_clear, &QPushButton::clicked, this, [this] { run([this] { m_editor->clear(); }); });
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        run([this] {
            m_editor->cancel();
            if (m_editor->closing() && m_editor->commitOnClose()) {
                m_okRan = true;
            }
        });
    });
    return box;
}

// ---------------------------------------------------------------- events

bool ComponentEditorDialog::run(const std::function<void()>& work) {
    if (m_failed) {
        return false;
    }
    if (!m_runEvent(work)) {
        m_failed = true;
        QDialog::reject();
        return false;
    }
    refresh();
    applyFocusRequest();
    for (int beeps = m_editor->takeBeeps(); beeps > 0; --beeps) {
        QApplication::beep();
    }
    if (m_editor->closing() && isVisible()) {
        QDialog::done(m_okRan ? QDialog::Accepted : QDialog::Rejected);
    }
    return true;
}

void ComponentEditorDialog::reject() {
    if (m_failed || m_editor->closing()) {
        QDialog::reject();
        return;
    }
    bool closes = false;
    run([this, &closes] {
        closes = m_editor->queryClose();
        if (closes && m_editor->commitOnClose()) {
            m_okRan = true;
        }
    });
}

bool ComponentEditorDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress && !m_refreshing && (watched == m_clear || watched == m_cancel)) {
        auto* button = static_cast<QPushButton*>(watched);
        if (button->isEnabled()) {
            if (button == m_clear) {
                m_editor->mouseDownOnClear();
            } else {
                m_editor->mouseDownOnCancel();
            }
            // Only now the box being typed into is left, and its check is skipped.
            button->setFocus(Qt::MouseFocusReason);
        }
        return false;
    }
    if (watched == m_grid) {
        if (event->type() == QEvent::KeyPress) {
            return gridKey(static_cast<QKeyEvent*>(event));
        }
        if (event->type() == QEvent::FocusOut && !m_refreshing &&
            MovesToAnotherControl(static_cast<QFocusEvent*>(event)->reason())) {
            run([this] { m_editor->gridLeaveCell(); });
        }
    }
    return false;
}

bool ComponentEditorDialog::gridKey(QKeyEvent* event) {
    if (isNavigationKey(event->key()) || event->key() == Qt::Key_Escape || event->key() == Qt::Key_F1) {
        return false;
    }
    if (event->key() == Qt::Key_Delete) {
        run([this] { m_editor->gridKeyDown(deleteKeyCode); });
        return true;
    }
    std::optional<int> code = KeyCodeOf(*event);
    if (event->key() == Qt::Key_Backspace && event->modifiers().testFlag(Qt::ControlModifier)) {
        code = deleteCharacterCode;
    }
    if (code) {
        const int key = *code;
        run([this, key] { m_editor->gridKeyPress(key); });
        return true;
    }
    return false;
}

void ComponentEditorDialog::applyFocusRequest() {
    if (const std::optional<EditorControl> request = m_editor->takeFocusRequest()) {
        QWidget* target = nullptr;
        switch (*request) {
        case EditorControl::NameBox:
            target = m_name;
            break;
        case EditorControl::Grid:
            target = m_grid;
            break;
        case EditorControl::HoseLength:
            target = m_hoseLength;
            break;
        }
        if (target != nullptr) {
            // Going back to a refused control is not the user leaving the
            // control that has the focus now: that one is not checked.
            const bool wasRefreshing = std::exchange(m_refreshing, true);
            target->setFocus(Qt::OtherFocusReason);
            m_refreshing = wasRefreshing;
        }
    }
}

// ---------------------------------------------------------------- showing the state

void ComponentEditorDialog::refresh() {
    const bool wasRefreshing = std::exchange(m_refreshing, true);
    const EditorControls& c = m_editor->controls();

    QStringList items;
    for (const std::string& entry : c.list) {
        items << fromWindows1252(entry);
    }
    QStringList shown;
    for (int i = 0; i < m_list->count(); ++i) {
        shown << m_list->item(i)->text();
    }
    if (shown != items) {
        m_list->clear();
        m_list->addItems(items);
    }
    m_list->setCurrentRow(c.listIndex);
    m_list->setEnabled(c.listEnabled);

    if (toWindows1252(m_name->text()) != c.name) {
        m_name->setText(fromWindows1252(c.name));
    }
    m_name->setEnabled(c.nameEnabled);
    m_custom->setChecked(c.custom);
    m_custom->setEnabled(false);

    if (m_fuelFrame != nullptr) {
        m_fuelFrame->setEnabled(c.fuelFrameEnabled);
        m_headFrame->setEnabled(c.headFrameEnabled);
        m_feet->setText(QString::fromStdString(c.feetCaption));
    }
    showOption(m_gas, c.gas);
    showOption(m_diesel, c.diesel);
    showOption(m_feet, c.feet);
    showOption(m_psi, c.psi);
    showOption(m_pump50, c.pump50);
    showOption(m_pump60, c.pump60);
    if (m_hoseLength != nullptr) {
        m_hoseLengthLabel->setText(QString::fromStdString(c.hoseLengthCaption));
        if (toWindows1252(m_hoseLength->text()) != c.hoseLength) {
            m_hoseLength->setText(fromWindows1252(c.hoseLength));
        }
        m_hoseLength->setEnabled(c.hoseLengthEnabled);
        showOption(m_hoseStandard, c.hoseStandard);
        showOption(m_hoseCustomized, c.hoseCustomized);
    }
    m_gpmLabel->setText(QString::fromStdString(c.gpmCaption));
    m_tdhLabel->setText(QString::fromStdString(c.tdhCaption));
    refreshGrid();

    m_add->setEnabled(c.addEnabled);
    m_edit->setEnabled(c.editEnabled);
    m_delete->setEnabled(c.deleteEnabled);
    m_save->setEnabled(c.saveEnabled);
    m_clear->setEnabled(c.clearEnabled);
    m_ok->setEnabled(c.okEnabled);
    m_cancel->setEnabled(c.cancelEnabled);
    m_refreshing = wasRefreshing;
}

void ComponentEditorDialog::refreshGrid() {
    const EditorControls& c = m_editor->controls();
    const RateLossGrid& grid = c.grid;
    m_grid->setRowCount(static_cast<int>(grid.rowCount()));
    for (int row = 0; row < static_cast<int>(grid.rowCount()); ++row) {
        for (int col = 0; col < 2; ++col) {
            const QString text = QString::fromStdString(grid.cell(row, col));
            QTableWidgetItem* item = m_grid->item(row, col);
            if (item == nullptr) {
                item = new QTableWidgetItem;
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
                m_grid->setItem(row, col, item);
            }
            if (item->text() != text) {
                item->setText(text);
            }
        }
    }
    m_grid->setHorizontalHeaderLabels({m_gpmLabel->text(), m_tdhLabel->text()});
    if (grid.rowCount() > 0) {
        m_grid->setCurrentCell(grid.row(), grid.col());
    }
    m_grid->setFocusPolicy(c.gridInTabOrder ? Qt::StrongFocus : Qt::ClickFocus);
}

} // namespace vesk::gui
