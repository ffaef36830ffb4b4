// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The head column of an editor's table shown as head of fuel or as pressure, and the rewrites between them.
#include "editors/head_views.h"

namespace vesk {

using namespace head_view;

namespace {

Double gravity(bool diesel) {
    return static_cast<Double>(diesel ? dieselSpecificGravity : gasSpecificGravity);
}

std::string roundedText(const std::string& text) {
    return doubleText(roundHalfEven(parseNumber(text), 1));
}

} // namespace

void RewriteGrid(GridRows& rows, const std::function<Double(Single)>& factor, RewriteText text) {
    if (rows.empty()) {
        return;
    }
    const Byte last = toByte(static_cast<Double>(rows.size() - 1));
    for (int i = 0; i <= last; ++i) {
        auto& row = at(rows, i);
        row[0] = roundedText(singleText(parseSingle(row[0])));
        const Double head = factor(parseSingle(row[1]));
        row[1] = roundedText(text == RewriteText::AsDouble ? doubleText(head) : singleText(toSingle(head)));
        if (i == 255) {
            fail(failure::overflow);
        }
    }
}

Double HeadFromPressure(Single psi, bool metric, bool diesel) {
    const Double feet = static_cast<Double>(psi) * feetOfWaterPerPsi / gravity(diesel);
    return metric ? feet * metresPerFoot : feet;
}

Double PressureFromHead(Single head, bool metric, bool diesel) {
    if (metric) {
        return static_cast<Double>(head) * gravity(diesel) * psiPerMetreOfWater;
    }
    return static_cast<Double>(head) * gravity(diesel) / feetOfWaterPerPsi;
}

Double PressureForFuel(Single psi, bool toDiesel, bool fromOtherFuel) {
    if (fromOtherFuel) {
        return static_cast<Double>(psi) * gravity(toDiesel) / gravity(!toDiesel);
    }
    return static_cast<Double>(psi) * gravity(toDiesel);
}

} // namespace vesk
