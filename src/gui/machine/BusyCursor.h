// SPDX-FileCopyrightText: The Tressel developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tressel {

/// The application's mouse pointer: busy or not, and at rest in either case while a dialog is up.
class BusyCursor {
public:
    BusyCursor() = default;
    ~BusyCursor();
    BusyCursor(const BusyCursor &) = delete;
    BusyCursor &operator=(const BusyCursor &) = delete;

    void SetBusy(bool isBusy);

    /// The default pointer for as long as this object lives, whatever SetBusy says meanwhile.
    class AtRest {
    public:
        explicit AtRest(BusyCursor &cursor);
        ~AtRest();
        AtRest(const AtRest &) = delete;
        AtRest &operator=(const AtRest &) = delete;

    private:
        BusyCursor &cursor;
    };

private:
    void Show();

    bool busy = false;
    bool shown = false;
    int rests = 0;
};

} // namespace tressel
