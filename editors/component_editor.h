// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// A component editor as plain data: the state of its controls, its flags, and what each event does to them.
#pragma once

#include "editors/editor_family.h"
#include "editors/rate_loss_grid.h"
#include "workbench/application_state.h"

#include <optional>
#include <string>
#include <vector>

namespace vesk {

// What outlives one editor: Adding and Editing, shared since only one editor
// is open at a time, and per kind the metric flag pair, set while the kind's
// catalogue holds metric numbers.
struct EditorSession {
    bool Adding = false;
    bool Editing = false;
    std::array<bool, componentKindCount> metricPair{};
};

struct OptionControl {
    bool value = false;
    bool enabled = false;
};

// The controls whose focus an event asks for.
enum class EditorControl { NameBox, Grid, HoseLength };

// The state of an editor's controls, which the window shows as it stands.
struct EditorControls {
    std::vector<std::string> list; // lstBRKNames
    int listIndex = -1;
    bool listEnabled = true;
    std::string name; // txtBRKName; the hose's txtHoseSize
    bool nameEnabled = false;
    bool custom = false; // chkBRKCustom, never enabled
    // The family and the hose: fraBRKFuel and fraBRKHead with their options.
    bool fuelFrameEnabled = false;
    bool headFrameEnabled = false;
    OptionControl gas, diesel, feet, psi;
    // The pump: its two frequencies.
    OptionControl pump50, pump60;
    // The hose: its length and whether it is the standard one.
    std::string hoseLength;
    bool hoseLengthEnabled = false;
    OptionControl hoseStandard, hoseCustomized;
    // Captions of the head option and of the two columns.
    std::string feetCaption, tdhCaption, gpmCaption, hoseLengthCaption;
    RateLossGrid grid;
    bool gridInTabOrder = false;
    bool addEnabled = true, editEnabled = true, deleteEnabled = true, saveEnabled = false, clearEnabled = false,
         okEnabled = true, cancelEnabled = true;
};

class ComponentEditor {
  public:
    // Load: the dialog as it opens over the kind's catalogue, which in metric
    // units is converted to metric (and back to US if it was left metric).
    ComponentEditor(const EditorForm& form, ApplicationState& app, EditorSession& session, UserInteraction& ui);

    const EditorForm& form() const { return m_form; }
    const EditorControls& controls() const { return m_c; }
    const EditorSession& session() const { return m_session; }
    Catalogue& catalogue() { return m_app.catalogues.of(m_form.kind); }
    // The focus that the last event asked for, taken by the window once.
    std::optional<EditorControl> takeFocusRequest();
    // Beeps the last events asked for, taken by the window.
    int takeBeeps();
    // Whether the dialog closes now.
    bool closing() const { return m_closing; }

    // The list and its buttons.
    void selectListEntry(int index);
    void add();
    void edit();
    void deleteSelected();
    void save();
    void clear();
    void mouseDownOnClear();
    void mouseDownOnCancel();
    void ok();
    // Cancel asks whether to save: Yes saves (Clear, then Ok), No closes.
    void cancel();
    // The close box and Escape: whether the dialog may close.
    bool queryClose();

    // The name box (for the hose, the size box) and its check as it loses the
    // focus: true when the focus goes back to it.
    void setName(std::string text);
    bool keyPassesInName(int code) const;
    bool nameLostFocus();

    // The options.
    void clickGas();
    void clickDiesel();
    void clickFeet();
    void clickPsi();
    void clickPump50();
    void clickPump60();
    void clickHoseStandard();
    void clickHoseCustomized();

    // The hose length box.
    void setHoseLength(std::string text);
    bool keyPassesInHoseLength(int code) const;
    void hoseLengthLostFocus();

    // The grid's events.
    void gridKeyPress(int code);
    void gridKeyDown(int keyCode);
    void gridClick();
    // LeaveCell: true when the cell was refused and the focus goes back to the grid.
    bool gridLeaveCell();
    void gridEnterCell();
    // A move to another cell, by the mouse or an arrow key: LeaveCell, the
    // move, EnterCell.
    void gridMoveTo(int row, int col);

    // Flags that tests and the window read.
    bool addSaved() const { return m_addSaved; }
    bool deleted() const { return m_deleted; }
    bool noEditSaved() const { return m_noEditSaved; }
    bool skipNameCheck() const { return m_skipNameCheck; }
    bool commitOnClose() const { return m_commitOnClose; }
    Integer selected() const { return m_selected; }

  private:
    bool isPump() const { return m_form.variant == EditorVariant::Pump; }
    bool isHose() const { return m_form.variant == EditorVariant::Hose; }
    bool usUnits() const { return m_app.config.Units; }
    bool metricInForce();
    Integer top() { return catalogue().Top(); }
    void fillList();
    void setUnitCaptions();
    void setFrameEnabled(bool enabled);
    void setFuel(bool diesel);
    void setGas() { setFuel(false); }
    void setDiesel() { setFuel(true); }
    void setFeet();
    void clearHeadOptions();
    void fillGridFrom(const ComponentRecord& record);
    GridKeyRules keyRules();
    HeadShown headShown();
    void storeGridIn(ComponentRecord& record);
    void storeFieldsIn(ComponentRecord& record);
    void toUS();
    void write();
    void refuseName(int message);
    bool nameCheckByWalk();

    const EditorForm& m_form;
    ApplicationState& m_app;
    EditorSession& m_session;
    UserInteraction& m_ui;
    EditorControls m_c;

    Integer m_selected = -1;
    bool m_addSaved = false;
    bool m_deleted = false;
    bool m_noEditSaved = true;
    bool m_skipNameCheck = false;
    bool m_skipNameCheckOnce = false;
    bool m_commitOnClose = false;
    bool m_leaveWithoutSaving = false;
    bool m_gridReady = false;
    bool m_wasGas = false;
    bool m_wasDiesel = false;
    bool m_closing = false;
    int m_beeps = 0;
    std::optional<EditorControl> m_focusRequest;
};

// The text of the question of Cancel and of the close box.
inline constexpr std::string_view saveChangesQuestion = "Do you want to Save changes?";
inline constexpr std::string_view customOrigin = "#Custom#";
inline constexpr std::string_view standardOrigin = "#Standard#";

} // namespace vesk
