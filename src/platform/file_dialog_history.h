// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

namespace platform {

/// Keeps no trace of the folders that the user opens: removes what the toolkit's file dialog has
/// stored about them, at its end and when asked to, unless other programs had stored some before.
/// Does nothing where the toolkit can be set to store it nowhere.
class NoFileDialogHistory {
public:
    NoFileDialogHistory();
    NoFileDialogHistory(const NoFileDialogHistory&) = delete;
    NoFileDialogHistory& operator=(const NoFileDialogHistory&) = delete;
    ~NoFileDialogHistory();

    void forget();

private:
    struct Found;
    std::unique_ptr<Found> found_;
};

/// Whether the desktop's own file dialog stores in the user's home what it was used for.
bool desktopFileDialogKeepsHistory();

} // namespace platform
