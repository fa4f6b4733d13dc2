// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

namespace tour {

/// A picture: its file name and its title.
struct Screen {
    const char* name;
    const char* title;
};

/// A window, page or dialog in its various states, with the boxes that it may open.
struct Chapter {
    const char* title;
    /// The class that each picture shows, or that is behind it. Empty for a screen without a form.
    const char* className;
    const char* file; ///< its source: the form, if it has one
    std::vector<Screen> screens;
};

/// Every screen of the program, in the order in which a user meets them.
const std::vector<Chapter>& catalogue();

/// Aborts the program if there is no such screen.
const Chapter& chapterOf(const char* screen);

} // namespace tour
