// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/// The languages of the program other than English.
namespace support {

/// The language codes.
QStringList languages();

/// The file with the compiled translation of a language.
QString translationFile(const QString& language);

/// Switches the program to a language for the lifetime of this object. Aborts the test program if
/// there is no such translation.
class Translation {
public:
    explicit Translation(const QString& language);
    Translation(const Translation&) = delete;
    Translation& operator=(const Translation&) = delete;
    ~Translation();

private:
    QTranslator texts_;
};

} // namespace support
