// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// Fuzz target of the reader of the piping data file.
#include "fuzz_contract.h"

#include "catalogue/piping_file.h"

namespace {

using namespace vesk;

// A loaded file gave at least one material and one size: the lists of the
// Piping Area select their first entries.
void checkLoaded(const PipingData& data) {
    if (data.materialNames.empty() || data.sizeNames.empty()) {
        fuzz::contractBroken("a loaded piping file without a material or a size");
    }
    if (data.materialNames.size() > pipeMaterialCount || data.sizeNames.size() > pipeSizeCount) {
        fuzz::contractBroken("a loaded piping file with more names than its tables hold");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::loadsOrFails([&] { checkLoaded(ParsePipingFile(fuzz::textOf(data, size))); });
    return 0;
}
