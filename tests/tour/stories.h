// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tour {

class Album;

// Each of them exercises a part of the program and takes its screens.
void takeStart(Album& album);
void takeMainWindow(Album& album);
void takeWizards(Album& album);
void takeConfiguration(Album& album);
void takeInsight(Album& album);

/// The whole catalogue.
inline void takeAll(Album& album) {
    takeStart(album);
    takeMainWindow(album);
    takeWizards(album);
    takeConfiguration(album);
    takeInsight(album);
}

} // namespace tour
