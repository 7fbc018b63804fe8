// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

#include "controls/CheckBox.h"

namespace tressel {

struct FormContext;

/// The window that says what the program is. Its check box and that of the tip window go together.
class AboutForm : public Form {
public:
    explicit AboutForm(const FormContext &context);

    CheckBox chkLoadTipsAtStartup;
};

} // namespace tressel
