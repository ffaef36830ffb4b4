// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The printed report written to a PDF file with no window: what vesk-calc --report calls. No Qt type shows here.
#pragma once

#include "workbench/application_state.h"

#include <string>

namespace vesk::gui {

// Writes the report's sheets, as File > Print sends them to a PDF printer, to
// `pdfFile`. Makes an application object on the offscreen platform when
// there is none. A failure while loading the sheets, or a file that cannot be
// written ("Path/File access error"), is a RunTimeFailure; no half-written
// file is left.
void WriteReportPdf(ApplicationState& app, const std::string& pdfFile);

} // namespace vesk::gui
