// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A component editor as plain data: the state of its controls, its flags, and what each event does to them.
#include "editors/component_editor.h"

#include "editors/name_rules.h"
#include "workbench/panel_state.h"

#include "catalogue/catalogue_units.h"
#include "catalogue/component_file.h"
#include "catalogue/component_lists.h"
#include "catalogue/editor_record.h"
#include "engine/ascii_case.h"

#include <algorithm>
#include <utility>

namespace vesk {

namespace {

// The grid's rows at load and Clear, and after a deletion.
constexpr std::size_t rowsAtLoad = 13;
constexpr std::size_t rowsAfterDelete = 12;

namespace message {
constexpr int standardCannotBeDeleted = 1;
constexpr int nameExists = 2;
constexpr int firstCharacterBlank = 4;
constexpr int lastCharacterBlank = 5;
constexpr int enterName = 6;
constexpr int nameIsNone = 30;
constexpr int invalidHoseSize = 31;
} // namespace message

// A cell taken to Single, to text, rounded to 1 decimal and stored as Single.
Single storedCell(const std::string& cell) {
    return toSingle(roundHalfEven(parseNumber(singleText(parseSingle(cell))), 1));
}

// The points a grid of these rows stands for, as SetXData counts them.
Integer pointCountOf(const GridRows& rows) {
    if (rows.size() <= 1) {
        return 1;
    }
    const auto& last = rows.back();
    if (leadingNumber(last[0]) != 0 || leadingNumber(last[1]) != 0) {
        return toInteger(static_cast<Double>(rows.size()));
    }
    return rows.size() == 2 ? Integer{1} : toInteger(static_cast<Double>(rows.size() - 1));
}

} // namespace

ComponentEditor::ComponentEditor(const EditorForm& form, ApplicationState& app, EditorSession& session,
                                 UserInteraction& ui)
    : m_form(form), m_app(app), m_session(session), m_ui(ui) {
    m_c.grid.reset(rowsAtLoad);
    m_c.gridInTabOrder = false;

    m_session.Adding = false;
    m_session.Editing = false;

    if (top() >= 0) {
        fillList();
        m_c.listIndex = 0;
    }

    m_c.nameEnabled = false;
    if (isPump()) {
        m_c.pump60 = {true, false};
        m_c.pump50 = {false, false};
    } else {
        setFrameEnabled(false);
        setGas();
        setFeet();
    }
    if (isHose()) {
        clickHoseStandard();
        m_c.hoseLengthEnabled = false;
        m_c.hoseStandard.enabled = false;
        m_c.hoseCustomized.enabled = false;
    }

    setUnitCaptions();
    bool& metricPair = at(m_session.metricPair, static_cast<int>(m_form.kind) - 1);
    const auto kindCode = static_cast<Integer>(m_form.kind);
    if (usUnits()) {
        if (metricPair) {
            ConvertCatalogueToUS(kindCode, m_app.catalogues);
            metricPair = false;
        }
    } else if (!metricPair) {
        ConvertCatalogueToMetric(kindCode, m_app.catalogues);
        metricPair = true;
    }
    m_gridReady = true;
}

std::optional<EditorControl> ComponentEditor::takeFocusRequest() {
    return std::exchange(m_focusRequest, std::nullopt);
}

int ComponentEditor::takeBeeps() {
    return std::exchange(m_beeps, 0);
}

bool ComponentEditor::metricInForce() {
    return TouchFrmData(m_app.panel, m_app.config).optMetric;
}

void ComponentEditor::fillList() {
    m_c.list.clear();
    for (const ComponentRecord& record : catalogue().Records) {
        m_c.list.push_back(record.Name);
    }
}

void ComponentEditor::setUnitCaptions() {
    const bool us = usUnits();
    m_c.feetCaption = us ? "Feet" : "Meter";
    m_c.tdhCaption = std::string(us ? m_form.tdhFeet : m_form.tdhMetre);
    m_c.gpmCaption = us ? "GPM" : "LPM";
    m_c.hoseLengthCaption = us ? "Hose Length(ft)" : "Hose Length(m)";
}

void ComponentEditor::setFrameEnabled(bool enabled) {
    if (isPump()) {
        m_c.pump50.enabled = enabled;
        m_c.pump60.enabled = enabled;
        return;
    }
    m_c.fuelFrameEnabled = enabled;
    m_c.headFrameEnabled = enabled;
    for (OptionControl* option : {&m_c.gas, &m_c.diesel, &m_c.feet, &m_c.psi}) {
        option->enabled = enabled;
    }
}

// ---------------------------------------------------------------- options

// Setting a fuel that is off runs its click, as the user's click does: with
// PSI shown, the table turns to the pressure of the new fuel.
void ComponentEditor::setFuel(bool diesel) {
    OptionControl& chosen = diesel ? m_c.diesel : m_c.gas;
    OptionControl& other = diesel ? m_c.gas : m_c.diesel;
    if (chosen.value) {
        return;
    }
    chosen.value = true;
    other.value = false;
    (diesel ? m_wasDiesel : m_wasGas) = true;
    if (m_c.psi.value) {
        m_selected = static_cast<Integer>(m_c.listIndex);
        const bool fromOtherFuel = std::exchange(diesel ? m_wasGas : m_wasDiesel, false);
        RewriteGrid(
            m_c.grid.rows(),
            [diesel, fromOtherFuel](Single psi) { return PressureForFuel(psi, diesel, fromOtherFuel); },
            RewriteText::AsSingle);
    }
}

// The Feet option turns a table shown in PSI back into head of fuel; a table
// shown in neither is already in head and stays as it is.
void ComponentEditor::setFeet() {
    if (m_c.feet.value) {
        return;
    }
    const bool fromPsi = m_c.psi.value;
    m_c.feet.value = true;
    m_c.psi.value = false;
    setUnitCaptions();
    m_selected = static_cast<Integer>(m_c.listIndex);
    if (fromPsi) {
        const bool metric = !usUnits();
        const bool diesel = m_c.diesel.value;
        RewriteGrid(
            m_c.grid.rows(), [metric, diesel](Single psi) { return HeadFromPressure(psi, metric, diesel); },
            RewriteText::AsDouble);
    }
}

void ComponentEditor::clearHeadOptions() {
    m_c.diesel.value = false;
    m_c.feet.value = false;
    m_c.psi.value = false;
}

void ComponentEditor::clickGas() {
    setGas();
}

void ComponentEditor::clickDiesel() {
    setDiesel();
}

void ComponentEditor::clickFeet() {
    setFeet();
}

void ComponentEditor::clickPsi() {
    if (m_c.psi.value) {
        return;
    }
    m_c.psi.value = true;
    m_c.feet.value = false;
    m_c.tdhCaption = "PSI";
    m_selected = static_cast<Integer>(m_c.listIndex);
    const bool metric = !usUnits();
    const bool diesel = m_c.diesel.value;
    RewriteGrid(
        m_c.grid.rows(), [metric, diesel](Single head) { return PressureFromHead(head, metric, diesel); },
        RewriteText::AsDouble);
}

void ComponentEditor::clickPump50() {
    m_c.pump50.value = true;
    m_c.pump60.value = false;
}

void ComponentEditor::clickPump60() {
    m_c.pump60.value = true;
    m_c.pump50.value = false;
}

void ComponentEditor::clickHoseStandard() {
    m_c.hoseStandard.value = true;
    m_c.hoseCustomized.value = false;
    m_c.hoseLengthEnabled = false;
    m_c.hoseLength = std::string(StandardHoseLength(usUnits()));
}

void ComponentEditor::clickHoseCustomized() {
    m_c.hoseCustomized.value = true;
    m_c.hoseStandard.value = false;
    m_c.hoseLengthEnabled = true;
}

// ---------------------------------------------------------------- list and buttons

void ComponentEditor::selectListEntry(int index) {
    if (index >= -1 && index < static_cast<int>(m_c.list.size())) {
        m_c.listIndex = index;
    }
}

void ComponentEditor::add() {
    m_selected = static_cast<Integer>(top() + 1);
    m_c.listIndex = m_c.list.empty() ? -1 : 0;
    m_c.name.clear();
    m_c.nameEnabled = true;
    setFrameEnabled(true);
    if (isPump()) {
        m_c.pump60.value = true;
        m_c.pump50.value = false;
    } else {
        setGas();
        setFeet();
    }
    if (isHose()) {
        m_c.hoseStandard.enabled = true;
        m_c.hoseCustomized.enabled = true;
        clickHoseStandard();
    }
    m_c.listEnabled = false;
    m_c.gridInTabOrder = true;
    m_c.saveEnabled = m_c.clearEnabled = m_c.okEnabled = m_c.cancelEnabled = true;
    m_c.addEnabled = m_c.editEnabled = m_c.deleteEnabled = false;
    m_c.custom = true;
    m_focusRequest = EditorControl::NameBox;
    m_session.Editing = false;
    m_skipNameCheck = false;
    m_skipNameCheckOnce = false;
    m_session.Adding = true;
    m_c.grid.reset(1);
}

void ComponentEditor::fillGridFrom(const ComponentRecord& record) {
    GridRows rows;
    const RateLossCurve& curve = record.Curve;
    for (long i = 0; i < curve.PointCount; ++i) {
        rows.push_back(
            {doubleText(roundHalfEven(at(curve.Flow, i), 1)), doubleText(roundHalfEven(at(curve.Head, i), 1))});
    }
    m_c.grid.setRows(std::move(rows));
}

void ComponentEditor::edit() {
    if (m_c.list.empty()) {
        return;
    }
    m_selected = static_cast<Integer>(m_c.listIndex);
    const ComponentRecord& record = at(catalogue().Records, m_selected);
    const bool custom = record.Origin == customOrigin;
    m_c.custom = custom;
    m_c.name = record.Name;
    m_c.nameEnabled = custom;
    if (isPump()) {
        m_c.pump50.value = record.IsGas;
        m_c.pump60.value = !record.IsGas;
        setFrameEnabled(custom);
    } else {
        setFrameEnabled(true);
        if (record.IsGas) {
            setGas();
        } else {
            setDiesel();
        }
        setFrameEnabled(custom);
    }
    if (isHose()) {
        m_c.hoseLength = singleText(record.HoseLength);
        m_c.hoseLengthEnabled = custom;
        m_c.hoseStandard.enabled = custom;
        m_c.hoseCustomized.enabled = custom;
        if (custom) {
            m_c.hoseCustomized.value = true;
            m_c.hoseStandard.value = false;
        }
    }
    m_c.listEnabled = false;
    m_c.addEnabled = m_c.editEnabled = m_c.deleteEnabled = false;
    m_c.gridInTabOrder = true;
    fillGridFrom(record);
    m_c.saveEnabled = m_c.clearEnabled = m_c.okEnabled = m_c.cancelEnabled = true;
    m_session.Editing = true;
    m_session.Adding = false;
    m_skipNameCheck = false;
    m_skipNameCheckOnce = false;
    if (custom) {
        m_focusRequest = EditorControl::NameBox;
    }
}

void ComponentEditor::deleteSelected() {
    m_deleted = false;
    m_c.okEnabled = m_c.cancelEnabled = m_c.addEnabled = m_c.editEnabled = m_c.deleteEnabled = true;
    if (m_c.list.empty()) {
        return;
    }
    m_selected = static_cast<Integer>(m_c.listIndex);
    const ComponentRecord& record = at(catalogue().Records, m_selected);
    if (record.Origin != customOrigin) {
        m_c.custom = false;
        ShowMessage(message::standardCannotBeDeleted, m_ui);
        m_c.listIndex = 0;
        return;
    }
    m_c.custom = true;
    if (!m_ui.askOkCancel(std::string(m_form.deletePrompt) + record.Name)) {
        m_c.listIndex = 0;
        return;
    }
    m_c.list.erase(m_c.list.begin() + m_selected);
    auto& records = catalogue().Records;
    records.erase(records.begin() + m_selected);
    m_deleted = true;
    m_c.name.clear();
    m_c.nameEnabled = false;
    setFrameEnabled(false);
    m_session.Adding = false;
    m_c.grid.reset(rowsAfterDelete);
    m_c.gridInTabOrder = false;
    m_c.custom = false;
    m_c.listIndex = m_c.list.empty() ? -1 : 0;
}

void ComponentEditor::storeFieldsIn(ComponentRecord& record) {
    record.Name = m_c.name;
    record.IsGas = isPump() ? m_c.pump50.value : m_c.gas.value;
    record.Origin = std::string(m_c.custom ? customOrigin : standardOrigin);
    if (isHose()) {
        record.HoseLength = toSingle(leadingNumber(m_c.hoseLength));
    }
}

// StoreGridInNewRecord and StoreGridInSelectedRecord: the table as head of
// fuel, each cell rounded to 1 decimal.
void ComponentEditor::storeGridIn(ComponentRecord& record) {
    if (!isPump()) {
        setFeet();
    }
    RateLossCurve& curve = record.Curve;
    curve.Flow.assign(1, 0);
    curve.Head.assign(1, 0);
    const GridRows& rows = m_c.grid.rows();
    for (long i = 0; i < static_cast<long>(rows.size()); ++i) {
        at(curve.Flow, i) = storedCell(at(rows, i)[0]);
        at(curve.Head, i) = storedCell(at(rows, i)[1]);
        redimPreserve(curve.Flow, i + 1);
        redimPreserve(curve.Head, i + 1);
    }
    curve.PointCount = pointCountOf(rows);
}

void ComponentEditor::save() {
    auto& records = catalogue().Records;
    const std::string_view letter = at(componentListNames, m_app.config.ComponentList).letter;
    if (m_session.Adding) {
        m_selected = static_cast<Integer>(m_c.list.size());
        records.resize(m_c.list.size() + 1);
        ComponentRecord& record = at(records, top());
        storeFieldsIn(record);
        record.ListCodes = std::string(letter);
        storeGridIn(record);
        m_c.listEnabled = true;
        m_c.list.push_back(m_c.name);
        m_addSaved = true;
        if (isPump()) {
            m_session.Adding = false;
        }
    } else if (m_session.Editing) {
        m_noEditSaved = false;
        m_selected = static_cast<Integer>(m_c.listIndex);
        storeFieldsIn(at(records, m_selected));
        // The list letter goes to the last record, whichever was edited.
        at(records, top()).ListCodes = std::string(letter);
        storeGridIn(at(records, m_selected));
        m_c.listEnabled = true;
        fillList();
        m_c.listIndex = 0;
    }
    m_c.nameEnabled = false;
    setFrameEnabled(false);
    if (!isPump()) {
        setGas();
        clearHeadOptions();
    }
    if (isHose()) {
        m_c.hoseLengthEnabled = false;
        m_c.hoseStandard.enabled = false;
        m_c.hoseCustomized.enabled = false;
    }
    m_c.gridInTabOrder = false;
    m_c.okEnabled = m_c.cancelEnabled = m_c.addEnabled = m_c.editEnabled = m_c.deleteEnabled = true;
    m_c.saveEnabled = m_c.clearEnabled = false;
    m_c.listEnabled = true;
}

void ComponentEditor::clear() {
    m_c.name.clear();
    m_c.custom = false;
    m_c.grid.reset(rowsAtLoad);
    m_c.gridInTabOrder = false;
    m_c.addEnabled = m_c.editEnabled = m_c.deleteEnabled = true;
    m_c.saveEnabled = m_c.clearEnabled = false;
    setFrameEnabled(false);
    if (!isPump()) {
        setGas();
        clearHeadOptions();
    }
    if (isHose()) {
        m_c.hoseLength.clear();
        m_c.hoseStandard.enabled = false;
        m_c.hoseCustomized.enabled = false;
    }
    m_c.listEnabled = true;
    m_session.Adding = false;
}

void ComponentEditor::mouseDownOnClear() {
    m_skipNameCheck = true;
}

void ComponentEditor::mouseDownOnCancel() {
    m_skipNameCheck = true;
    m_skipNameCheckOnce = true;
}

void ComponentEditor::toUS() {
    if (metricInForce()) {
        ConvertCatalogueToUS(static_cast<Integer>(m_form.kind), m_app.catalogues);
        at(m_session.metricPair, static_cast<int>(m_form.kind) - 1) = false;
    }
}

void ComponentEditor::write() {
    SetComponentFileData(m_form.kind, catalogue(), m_app.programFolder);
}

void ComponentEditor::ok() {
    m_commitOnClose = true;
    auto& records = catalogue().Records;
    const std::size_t listCount = m_c.list.size();
    if (m_addSaved) {
        toUS();
        write();
    } else if (m_c.name.empty() && m_noEditSaved) {
        if (m_session.Adding) {
            records.resize(listCount + 1);
            if (m_c.nameEnabled) {
                records.resize(listCount);
            }
        }
        toUS();
        write();
    } else if (m_c.name.empty()) {
        // An edit stored with Save and then cleared: nothing is converted or written.
    } else if (m_session.Editing && m_noEditSaved) {
        m_selected = static_cast<Integer>(m_c.listIndex);
        ComponentRecord& record = at(records, m_selected);
        storeFieldsIn(record);
        record.ListCodes = std::string(at(componentListNames, m_app.config.ComponentList).letter);
        storeGridIn(record);
        toUS();
        m_noEditSaved = false;
        write();
    } else if (m_session.Editing) {
        toUS();
        write();
        m_session.Editing = false;
    } else if (!m_deleted) {
        m_selected = static_cast<Integer>(listCount);
        records.resize(listCount + 1);
        if (!isPump() && !m_c.feet.value) {
            setFeet();
        }
        EditorFields fields;
        fields.adding = m_session.Adding;
        fields.editing = false;
        fields.selectedIndex = m_selected;
        fields.componentList = m_app.config.ComponentList;
        fields.name = m_c.name;
        fields.flagOption = isPump() ? m_c.pump50.value : m_c.gas.value;
        fields.custom = m_c.custom;
        fields.rows = m_c.grid.rows();
        if (isHose()) {
            fields.hoseLength = toSingle(leadingNumber(m_c.hoseLength));
        }
        SetComponentData(catalogue(), fields);
        m_session.Adding = fields.adding;
        toUS();
        write();
    } else {
        write();
    }
    LoadAllLists(m_app.panel, m_app.catalogues, m_app.config);
    m_closing = true;
}

void ComponentEditor::cancel() {
    switch (m_ui.askYesNoCancel(saveChangesQuestion)) {
    case Answer::Yes:
        clear();
        ok();
        return;
    case Answer::No:
        m_leaveWithoutSaving = true;
        m_closing = true;
        return;
    case Answer::Cancel:
        return;
    }
}

bool ComponentEditor::queryClose() {
    if (m_leaveWithoutSaving) {
        m_leaveWithoutSaving = false;
        return true;
    }
    bool closes = true;
    if (!m_commitOnClose) {
        switch (m_ui.askYesNoCancel(saveChangesQuestion)) {
        case Answer::Yes:
            clear();
            ok();
            break;
        case Answer::No:
            break;
        case Answer::Cancel:
            closes = false;
            break;
        }
    }
    m_commitOnClose = false;
    if (closes) {
        m_closing = true;
    }
    return closes;
}

// ---------------------------------------------------------------- the name box

void ComponentEditor::setName(std::string text) {
    m_c.name = std::move(text);
}

bool ComponentEditor::keyPassesInName(int code) const {
    return isHose() ? HoseSizeKeyPasses(code, m_c.name) : NameKeyPasses(code);
}

void ComponentEditor::refuseName(int code) {
    ShowMessage(code, m_ui);
    m_focusRequest = EditorControl::NameBox;
}

bool ComponentEditor::nameLostFocus() {
    const int remembered = m_c.listIndex;
    const std::string rememberedName = remembered >= 0 && remembered < static_cast<int>(m_c.list.size())
                                           ? m_c.list[static_cast<std::size_t>(remembered)]
                                           : std::string();
    if (m_skipNameCheck) {
        m_skipNameCheck = false;
        m_skipNameCheckOnce = false;
        return false;
    }
    const std::string& text = m_c.name;
    if (!text.empty() && text.front() == ' ') {
        refuseName(message::firstCharacterBlank);
        return true;
    }
    if (!text.empty() && text.back() == ' ') {
        refuseName(message::lastCharacterBlank);
        return true;
    }
    if (isHose() && !IsValidHoseSize(text)) {
        refuseName(message::invalidHoseSize);
        return true;
    }
    if (!m_session.Adding && !m_session.Editing) {
        if (m_skipNameCheckOnce) {
            m_skipNameCheck = false;
            m_skipNameCheckOnce = false;
        }
        return false;
    }
    if (text.empty()) {
        refuseName(message::enterName);
        return true;
    }
    if (!isHose() && EqualIgnoringCase(text, "none")) {
        refuseName(message::nameIsNone);
        return true;
    }
    if (m_session.Editing) {
        for (int i = 0; i <= top() - 1; ++i) {
            m_c.listIndex = i;
            if (EqualIgnoringCase(text, rememberedName)) {
                break; // an unchanged name is good
            }
            if (EqualIgnoringCase(text, at(m_c.list, i))) {
                refuseName(message::nameExists);
                m_c.listIndex = remembered;
                return true;
            }
        }
        m_c.listIndex = remembered;
    }
    if (m_session.Adding) {
        for (int i = 0; i <= top(); ++i) {
            m_c.listIndex = i;
            if (EqualIgnoringCase(text, at(m_c.list, i))) {
                refuseName(message::nameExists);
                m_c.listIndex = 0;
                return true;
            }
        }
    }
    return false;
}

// ---------------------------------------------------------------- the hose length

void ComponentEditor::setHoseLength(std::string text) {
    m_c.hoseLength = std::move(text);
}

bool ComponentEditor::keyPassesInHoseLength(int code) const {
    return HoseLengthKeyPasses(code, m_c.hoseLength);
}

void ComponentEditor::hoseLengthLostFocus() {
    const HoseLengthCheck check = CheckHoseLength(m_c.hoseLength, usUnits());
    if (check.message) {
        m_ui.showMessageBox(*check.message, MessageIcon::None);
    }
    m_c.hoseLength = check.text;
}

// ---------------------------------------------------------------- the grid

GridKeyRules ComponentEditor::keyRules() {
    GridKeyRules rules;
    rules.deleteKeyEmptiesCell = m_form.deleteKeyEmptiesCell;
    if (m_session.Editing && m_selected >= 0 && m_selected <= top()) {
        rules.refuseKeys = at(catalogue().Records, m_selected).Origin == standardOrigin;
    }
    return rules;
}

HeadShown ComponentEditor::headShown() {
    return {metricInForce(), m_c.feet.value, m_c.psi.value, m_c.gas.value, m_c.diesel.value};
}

void ComponentEditor::gridKeyPress(int code) {
    if (m_c.grid.keyPress(code, keyRules())) {
        ++m_beeps;
    }
}

void ComponentEditor::gridKeyDown(int keyCode) {
    m_c.grid.keyDown(keyCode, keyRules());
}

void ComponentEditor::gridClick() {
    m_c.grid.click();
}

bool ComponentEditor::gridLeaveCell() {
    const bool checks = !m_skipNameCheck && m_gridReady;
    const std::span<const CellLimit> limits =
        isPump() ? std::span<const CellLimit>(pumpCellLimits) : std::span<const CellLimit>(familyCellLimits);
    const bool refused = m_c.grid.leaveCell(checks, limits, headShown(), m_ui);
    if (refused) {
        m_focusRequest = EditorControl::Grid;
    }
    return refused;
}

void ComponentEditor::gridEnterCell() {
    m_c.grid.enterCell();
}

void ComponentEditor::gridMoveTo(int row, int col) {
    gridLeaveCell();
    m_c.grid.setCurrent(row, col);
    gridEnterCell();
}

} // namespace vesk
