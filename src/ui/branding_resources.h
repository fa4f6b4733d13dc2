// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QIcon>
#include <QString>

#include "ui/string_table.h"

namespace ui {

/// The program's look: its icon, its logo and a few strings. They are built in, and a file
/// "resources.zip" in the current directory replaces them, all or some. For the GUI thread only.
class BrandingResources {
public:
    /// An image of more pixels than this counts as one that can't be decoded.
    static constexpr qint64 mostPixels = qint64(32) * 1024 * 1024;

    /// Takes the built-in look and then what the file has. A file that is missing or damaged
    /// changes nothing and says nothing. Needs the application object.
    void load();

    QIcon applicationIcon() const { return applicationIcon_; }
    QIcon logoIcon() const { return logoIcon_; }
    /// Empty if the file says so.
    QString description() const;
    /// A URL as somebody typed it; empty if the file says so.
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
