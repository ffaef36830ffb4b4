// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The run-time failure an action ends in, for tests that expect one.
#pragma once

#include "engine/numeric.h"

#include <string>

namespace vesk::test {

// The description of the run-time failure that `action` ends in; empty when
// it ends normally.
template <typename Action> std::string failureOf(Action&& action) {
    try {
        action();
    } catch (const RunTimeFailure& failure) {
        return failure.what();
    }
    return {};
}

} // namespace vesk::test
