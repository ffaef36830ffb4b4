// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// vesk-calc --update: the Update of the Update dialog from a script, with its question answered Yes.
#include "cli/update_command.h"

#include "catalogue/standard_update.h"

namespace vesk::cli {

namespace {

// The boxes of the update on a stream; the one question is answered Yes, as
// the administrator who runs the script has answered it already.
class AnsweringYes : public UserInteraction {
  public:
    explicit AnsweringYes(std::ostream& err) : m_err(err) {}
    void showMessageBox(std::string_view text, MessageIcon) override { m_err << text << '\n'; }
    Answer askYesNo(std::string_view) override { return Answer::Yes; }

  private:
    std::ostream& m_err;
};

constexpr int exitWritten = 0;
constexpr int exitMessage = 1;
constexpr int exitRunTimeFailure = 3;

} // namespace

int RunUpdateCommand(const std::function<std::filesystem::path()>& programFolder, const std::string& newDataFile,
                     std::ostream& err) {
    AnsweringYes ui(err);
    try {
        return UpdateStandardData(programFolder(), newDataFile, ui) == UpdateEnd::Merged ? exitWritten : exitMessage;
    } catch (const RunTimeFailure& failure) {
        err << "Run-time error: " << failure.what() << '\n';
        return exitRunTimeFailure;
    }
}

} // namespace vesk::cli
