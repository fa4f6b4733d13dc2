// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

namespace tour {

/// A picture: the name of its file, and what is on it.
struct Screen {
    const char* name;
    const char* title;
};

/// A window, a page or a dialog in its states, with the boxes that it may open.
struct Chapter {
    const char* title;
    /// The class that each picture shows, or that is behind it. Empty for a screen without a form.
    const char* className;
    const char* file; ///< its source: the form, if it has one
    std::vector<Screen> screens;
};

/// Every screen of the program, in the order in which a user meets them.
const std::vector<Chapter>& catalogue();

/// Ends the program if there is no such screen.
const Chapter& chapterOf(const char* screen);

} // namespace tour
