// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The round axis maximum of a chart.
#include "engine/chart_scale.h"

#include <cmath>

namespace vesk {

namespace {

// The round maxima that a multiple of the leading decade is raised to.
struct LadderRung {
    Integer upTo;
    Integer result;
};
constexpr LadderRung ladder[] = {{15, 15},   {25, 25},     {50, 50},     {100, 100},  {250, 250},
                                 {500, 500}, {1000, 1000}, {2500, 2500}, {5000, 5000}};

// 16-bit product, failing with "Overflow" past its range.
Integer multiply(Integer a, Integer b) {
    return toInteger(static_cast<Long>(a) * b);
}

} // namespace

Integer ChartScale(Single value) {
    // The number of characters of the rounded value, a minus sign included,
    // gives the leading decade.
    const Integer rounded = toInteger(value);
    const auto digits = static_cast<int>(integerText(rounded).size());
    const Integer step = toInteger(std::pow(10.0, digits - 1));
    if (step < 10) {
        return 10;
    }
    // The first multiple strictly above the value: a value on a multiple goes
    // to the next one.
    Integer c = 1;
    Integer multiple = multiply(c, step);
    while (!(static_cast<Single>(multiple) > value)) {
        c = toInteger(static_cast<Long>(c) + 1);
        multiple = multiply(c, step);
    }
    for (const LadderRung& rung : ladder) {
        if (multiple <= rung.upTo) {
            return rung.result;
        }
    }
    return multiple;
}

} // namespace vesk
