// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "resources/pictures.h"

#include <QtPlugin>

Q_IMPORT_PLUGIN(PaletteIconPlugin)

// The macro declares a function, so it can't be used inside a namespace.
static void initPicturesResource() {
    Q_INIT_RESOURCE(pictures);
}

namespace resources {

void initPictures() {
    initPicturesResource();
}

} // namespace resources
