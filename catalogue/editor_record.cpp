// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// How an open component editor stores its fields and table into a record.
#include "catalogue/editor_record.h"

#include "catalogue/component_lists.h"

namespace vesk {

namespace {

// The number of points a grid of `rows` rows stands for.
Integer pointCountOf(const std::vector<std::array<std::string, 2>>& rows, Integer unchanged) {
    const auto r = static_cast<Long>(rows.size());
    if (r == 1) {
        return 1;
    }
    if (r > 1) {
        const auto& last = rows.back();
        const bool lastRowIsZero = leadingNumber(last[0]) == 0 && leadingNumber(last[1]) == 0;
        if (!lastRowIsZero) {
            return toInteger(r);
        }
        return r == 2 ? Integer{1} : toInteger(r - 1);
    }
    return unchanged;
}

void storeInto(ComponentRecord& record, const EditorFields& editor) {
    record.ListCodes = at(componentListNames, editor.componentList).letter;
    record.Name = editor.name;
    record.IsGas = editor.flagOption;
    record.Origin = editor.custom ? "#Custom#" : "#Standard#";
    if (editor.hoseLength) {
        record.HoseLength = *editor.hoseLength;
    }

    RateLossCurve& curve = record.Curve;
    curve.Flow.assign(1, 0);
    curve.Head.assign(1, 0);
    curve.PointCount = pointCountOf(editor.rows, curve.PointCount);
    if (curve.PointCount == 1) {
        curve.Flow[0] = parseSingle(at(editor.rows, 0)[0]);
        curve.Head[0] = parseSingle(at(editor.rows, 0)[1]);
        return;
    }
    for (long i = 0; i <= static_cast<long>(curve.PointCount) - 1; ++i) {
        at(curve.Flow, i) = parseSingle(at(editor.rows, i)[0]);
        at(curve.Head, i) = parseSingle(at(editor.rows, i)[1]);
        redimPreserve(curve.Flow, i + 1);
        redimPreserve(curve.Head, i + 1);
    }
}

} // namespace

void SetComponentData(Catalogue& catalogue, EditorFields& editor) {
    if (editor.adding) {
        storeInto(at(catalogue.Records, catalogue.Top()), editor);
        editor.adding = false;
    }
    if (editor.editing) {
        storeInto(at(catalogue.Records, editor.selectedIndex), editor);
    }
}

} // namespace vesk
