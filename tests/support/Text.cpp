// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#include "support/Text.h"
