// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIcon>
#include <QString>

#include "ui/string_table.h"

namespace ui {

/// The program's branding: its icon, its logo and a few strings. They are built in, and a file
/// "resources.zip" in the current directory can replace some or all of them. For the GUI thread
/// only.
class BrandingResources {
public:
    /// An image with more pixels is treated as undecodable.
    static constexpr qint64 mostPixels = qint64(32) * 1024 * 1024;

    /// Loads the built-in branding, then overrides from the file. A missing or damaged file is
    /// silently ignored. Needs the application object.
    void load();

    QIcon applicationIcon() const { return applicationIcon_; }
    QIcon logoIcon() const { return logoIcon_; }
    /// Empty if the file sets it so.
    QString description() const;
    /// A URL as typed by its author; empty if the file sets it so.
    QString homePageUrl() const;

private:
    void setDefaults();
    QString string(const char* key) const;

    QIcon applicationIcon_;
    QIcon logoIcon_;
    StringTable strings_;
};

/// Loaded by the main window.
extern BrandingResources g_branding;

} // namespace ui
