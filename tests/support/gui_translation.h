// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

/// The languages of the program, besides English.
namespace support {

/// Their codes.
QStringList languages();

/// The file with the compiled texts of a language.
QString translationFile(const QString& language);

/// The program speaks a language for as long as this object lives. Ends the test program if there
/// are no such texts.
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
