// SPDX-FileCopyrightText: Vesk developers
// SPDX-License-Identifier: MIT
// The eight component editors as one table of what sets each apart.
#include "editors/editor_family.h"

#include "engine/numeric.h"
#include "messages/help_topics.h"

namespace vesk {

const EditorForm& EditorFormOf(ComponentKind kind) {
    for (const EditorForm& form : editorForms) {
        if (form.kind == kind) {
            return form;
        }
    }
    fail(failure::subscript);
}

std::string ControlName(const EditorForm& form, std::string_view prefix, std::string_view role) {
    std::string name(prefix);
    name += form.infix;
    name += role;
    return name;
}

std::string_view EditorHelpTopic(const EditorForm& form) {
    const std::optional<std::string_view> topic = HelpTopicOf(form.form);
    if (!topic) {
        fail(failure::subscript);
    }
    return *topic;
}

} // namespace vesk
