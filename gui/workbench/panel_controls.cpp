// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The text fields, lists and unit labels of the four areas, made from the table of the panels and bound to them.
#include "gui/workbench/panel_controls.h"

#include "gui/common/field_filters.h"
#include "gui/common/text_codec.h"
#include "gui/workbench/area_widgets.h"
#include "workbench/field_checks.h"
#include "workbench/panel_events.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>

namespace vesk::gui {

namespace {

// The width of a list, in characters, where the default of ten does not fit.
int minimumContentsLength(const PanelList& list) {
    if (list.list == &PanelState::cmbQuantity) {
        return 2;
    }
    if (list.list == &PanelState::cmbNoOfBranches) {
        return 3;
    }
    return 10;
}

} // namespace

PanelControls::PanelControls(WindowContext& context, QObject* parent) : QObject(parent), m_context(context) {}

QLineEdit* PanelControls::field(const char* controlName) {
    const PanelField& row = FieldNamed(controlName);
    auto* edit = named(new QLineEdit, row.controlName);
    const Field field{&row, edit};
    m_fields.push_back(field);
    if (row.check == FieldCheck::None) {
        edit->setEnabled(false); // shown, not entered
        return edit;
    }
    edit->setMaxLength(row.maxLength);
    edit->setToolTip(QString::fromLatin1(row.toolTip));
    connect(edit, &QLineEdit::textEdited, this,
            [this, &row](const QString& typed) { TextOf(m_context.app.panel, row) = toWindows1252(typed); });
    new FieldFilter(edit, {row.keys, checkOf(field)});
    watchFocus(edit);
    return edit;
}

std::function<bool()> PanelControls::checkOf(const Field& field) {
    const PanelField& row = *field.row;
    return [this, field, &row] {
        bool back = false;
        m_context.runEvent([&] {
            ApplicationState& app = m_context.app;
            switch (row.check) {
            case FieldCheck::Length:
                back = LengthCheck(app, row, m_context.ui);
                break;
            case FieldCheck::Count:
                CountCheck(TextOf(app.panel, row));
                break;
            case FieldCheck::Nozzle:
                back = NozzleCheck(app, m_context.ui);
                break;
            case FieldCheck::None:
                break;
            }
        });
        showField(field);
        return back;
    };
}

QComboBox* PanelControls::list(const char* controlName) {
    const PanelList& row = ListNamed(controlName);
    auto* combo = named(new QComboBox, row.controlName);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    combo->setMinimumContentsLength(minimumContentsLength(row));
    combo->setToolTip(QString::fromLatin1(row.toolTip));
    m_lists.push_back({&row, combo});
    connect(combo, &QComboBox::activated, this, [this, combo, &row](int index) {
        m_context.runEvent([&] { ClickList(m_context.app.panel, m_context.app.window, row, index); });
        if (row.selectionToolTip) {
            combo->setToolTip(combo->itemText(index));
        }
        if (m_context.app.window.sitePictureDue) {
            emit sitePictureDue();
        }
    });
    new FocusFilter(combo, {{}, [this, &row](Qt::FocusReason reason) {
                                if (!MovesToAnotherControl(reason)) {
                                    return;
                                }
                                m_context.runEvent([&] { LeaveList(m_context.app.window, row); });
                                if (m_context.app.window.sitePictureDue) {
                                    emit sitePictureDue();
                                }
                            }});
    watchFocus(combo);
    return combo;
}

QLabel* PanelControls::unitLabel(const char* fieldName) {
    const PanelField& row = FieldNamed(fieldName);
    auto* label = named(new QLabel, row.unit.labelControl);
    m_unitLabels.push_back({&row, label});
    return label;
}

void PanelControls::watchFocus(QWidget* control) {
    const QString name = control->objectName();
    new FocusFilter(control, {[this, name](Qt::FocusReason reason) {
                                  const FocusMove move = MovedByUser(reason) ? FocusMove::ByUser : FocusMove::ByProgram;
                                  RecommendationClears clears;
                                  m_context.runEvent([&] {
                                      clears = EnterControl(m_context.app.panel, m_context.app.window,
                                                            toWindows1252(name), move);
                                  });
                                  emit controlEntered(clears.lstDispensing, clears.lstPump);
                              },
                              {}});
}

void PanelControls::showField(const Field& field) {
    const QString text = qs(TextOf(m_context.app.panel, *field.row));
    if (field.edit->text() != text) {
        field.edit->setText(text);
    }
}

void PanelControls::showList(const List& list) {
    const ComboList& entries = m_context.app.panel.*list.row->list;
    QComboBox* combo = list.combo;
    const QSignalBlocker blocker(combo);
    bool same = combo->count() == entries.ListCount();
    for (Long index = 0; same && index < entries.ListCount(); ++index) {
        same = combo->itemText(index) == qs(entries.List(index));
    }
    if (!same) {
        combo->clear();
        for (const std::string& entry : entries.Entries()) {
            combo->addItem(qs(entry));
        }
    }
    combo->setCurrentIndex(entries.ListIndex());
}

void PanelControls::showArea(Area area) {
    for (const Field& field : m_fields) {
        if (field.row->area == area) {
            showField(field);
        }
    }
    for (const List& list : m_lists) {
        if (list.row->area == area) {
            showList(list);
        }
    }
    for (const UnitLabel& label : m_unitLabels) {
        if (label.row->area == area) {
            label.label->setText(qs(m_context.app.panel.captions.*label.row->unit.label));
        }
    }
}

void PanelControls::showTextFields() {
    for (const Field& field : m_fields) {
        showField(field);
    }
}

} // namespace vesk::gui
