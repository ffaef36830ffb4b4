// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The end of an iteration that has begun to repeat itself.
#pragma once

#include "engine/numeric.h"

#include <limits>

namespace vesk {

// An iteration whose whole state is one Single, and whose next value depends
// on that state alone, runs forever once a value comes round again. The guard
// watches the values (Brent's method: one comparison a pass, no memory beyond
// two numbers) and ends such an iteration with "Overflow" instead of a hang.
// An iteration that ends by itself is never stopped.
class CycleGuard {
  public:
    void observe(Single value) {
        if (value == m_saved) {
            fail(failure::overflow);
        }
        if (m_passesSinceSaved == m_window) {
            m_saved = value;
            m_window *= 2;
            m_passesSinceSaved = 0;
        }
        ++m_passesSinceSaved;
    }

  private:
    Single m_saved = std::numeric_limits<Single>::quiet_NaN(); // equal to nothing
    unsigned long m_window = 1;
    unsigned long m_passesSinceSaved = 1;
};

} // namespace vesk
