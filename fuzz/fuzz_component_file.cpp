// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Fuzz target of the reader of the eight component files: the first byte of the
// input picks the kind, the rest is the text of the file.
#include "fuzz_contract.h"

#include "catalogue/component_file.h"

namespace {

using namespace vesk;

// Bytes 1 to 8 pick the kinds in their order; any other byte picks one too,
// counting on from there, so that every input reaches the reader.
ComponentKind kindOf(std::uint8_t byte) {
    return static_cast<ComponentKind>((byte + componentKindCount - 1) % componentKindCount + 1);
}

// A loaded catalogue holds at least one record, and each record a curve of 1
// to 255 points with exactly as many flows and heads.
void checkLoaded(ComponentKind kind, const Catalogue& catalogue) {
    if (catalogue.Top() < 0 || static_cast<std::size_t>(catalogue.Top()) + 1 != catalogue.Records.size()) {
        fuzz::contractBroken("a loaded catalogue without a record, or Top not its last index");
    }
    for (const ComponentRecord& record : catalogue.Records) {
        const RateLossCurve& curve = record.Curve;
        if (curve.PointCount < 1 || curve.PointCount > 255) {
            fuzz::contractBroken("a loaded curve with a point count outside 1 to 255");
        }
        const auto points = static_cast<std::size_t>(curve.PointCount);
        if (curve.Flow.size() != points || curve.Head.size() != points) {
            fuzz::contractBroken("a loaded curve whose tables are not as long as its point count");
        }
        if (!traitsOf(kind).hasHoseLength && record.HoseLength != 0) {
            fuzz::contractBroken("a hose length on a kind that has none");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const ComponentKind kind = kindOf(data[0]);
    std::string text = fuzz::textOf(data + 1, size - 1);
    fuzz::loadsOrFails([&] { checkLoaded(kind, ParseComponentFile(kind, std::move(text))); });
    return 0;
}
