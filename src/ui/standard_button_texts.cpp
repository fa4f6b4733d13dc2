// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <array>

#include <QCoreApplication>

namespace {

/// The toolkit looks up the buttons of its boxes under this context. Its own translations aren't
/// on every machine, so that these stand among the program's.
[[maybe_unused]] constexpr std::array<const char*, 4> standardButtonTexts{
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
};

} // namespace
