// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// An editor opened over an application started on a program folder, and the user's ways of filling it.
#pragma once

#include "editors/component_editor.h"
#include "support/started_app.h"

#include "catalogue/component_file.h"

#include <gtest/gtest.h>
#include <memory>
#include <utility>
#include <vector>

namespace vesk::test {

// A copy of the shipped program folder set to metric units.
inline TempProgramFolder metricFolder() {
    return shippedWithSettings({"40", "4", "True", "False", "A"});
}

struct EditorRig {
    explicit EditorRig(ComponentKind kind, TempProgramFolder folder = TempProgramFolder::copyOfShipped())
        : started(std::move(folder)), m_kind(kind) {
        EXPECT_EQ(started.failure, "");
        EXPECT_FALSE(started.ended);
        started.ui.shown.clear();
        open();
    }
    // Opens the editor again, as the menu does after the last one closed.
    void open() { editor = std::make_unique<ComponentEditor>(EditorFormOf(m_kind), started.app, session, started.ui); }

    ComponentEditor& operator*() { return *editor; }
    ComponentEditor* operator->() { return editor.get(); }
    RecordingInteraction& ui() { return started.ui; }
    Catalogue& catalogue() { return started.app.catalogues.of(m_kind); }
    std::string file() const {
        return readBytes(started.folder.path() / "Components" / std::string(traitsOf(m_kind).fileAsRead));
    }
    Catalogue catalogueOnDisk() const { return ParseComponentFile(m_kind, file()); }

    StartedApp started;
    EditorSession session;
    std::unique_ptr<ComponentEditor> editor;

  private:
    ComponentKind m_kind;
};

// Types into the current cell of the grid, key by key.
inline void typeKeys(ComponentEditor& editor, std::string_view keys) {
    for (const char key : keys) {
        editor.gridKeyPress(static_cast<unsigned char>(key));
    }
}

// Moves to a cell, empties it with the Delete key and types the text.
inline void typeCell(ComponentEditor& editor, int row, int col, std::string_view text) {
    editor.gridMoveTo(row, col);
    editor.gridKeyDown(46);
    typeKeys(editor, text);
}

// Types a table of points as the user does: each row's two cells, then Enter
// to grow the table by a spare row.
inline void typeTable(ComponentEditor& editor, const std::vector<std::pair<std::string, std::string>>& points) {
    for (std::size_t i = 0; i < points.size(); ++i) {
        const int row = static_cast<int>(i);
        typeCell(editor, row, 0, points[i].first);
        typeCell(editor, row, 1, points[i].second);
        editor.gridKeyPress(13);
    }
    editor.gridLeaveCell();
}

// Adds a component with a name and a table, and stores it with Save.
inline void addAndSave(ComponentEditor& editor, const std::string& name,
                       const std::vector<std::pair<std::string, std::string>>& points) {
    editor.add();
    editor.setName(name);
    EXPECT_FALSE(editor.nameLostFocus());
    typeTable(editor, points);
    editor.save();
}

inline int indexOf(const Catalogue& catalogue, std::string_view name) {
    for (std::size_t i = 0; i < catalogue.Records.size(); ++i) {
        if (catalogue.Records[i].Name == name) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

// A record of the file's grammar: header, fuel, origin and its points.
inline std::string recordText(std::string_view name, std::string_view codes, bool gas, std::string_view origin,
                              std::initializer_list<std::string_view> points) {
    std::string text = "$" + std::string(name) + " #" + std::string(codes) + "\r\n";
    text += gas ? "#TRUE#\r\n" : "#FALSE#\r\n";
    text += std::string(origin) + "\r\n#RATELOSS_BEGIN#\r\n";
    for (const std::string_view point : points) {
        text += std::string(point) + "\r\n";
    }
    return text + "#RATELOSS_END#\r\n";
}

// A copy of the shipped program folder whose hose file lacks the records of one size.
inline TempProgramFolder withoutHoseSize(std::string_view size) {
    TempProgramFolder folder = TempProgramFolder::copyOfShipped();
    const std::string text = folder.read("Components/HOSES.DAT");
    const std::string header = "$" + std::string(size) + " #";
    std::string kept;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = text.find("#RATELOSS_END#\r\n", start) + 16;
        const std::string record = text.substr(start, end - start);
        if (!record.starts_with(header)) {
            kept += record;
        }
        start = end;
    }
    folder.write("Components/HOSES.DAT", kept);
    return folder;
}

} // namespace vesk::test
