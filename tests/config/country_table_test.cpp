// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <map>
#include <set>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gmock/gmock.h>

#include "config/country_table.h"

namespace {

/// Countries by their numeric codes, as a package of the system knows them.
std::map<std::int32_t, QJsonObject> independentList() {
    QFile file(QStringLiteral("/usr/share/iso-codes/json/iso_3166-1.json"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    std::map<std::int32_t, QJsonObject> countries;
    const QJsonObject list = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonArray rows = list.value(QLatin1String("3166-1")).toArray();
    for (const QJsonValue& row : rows)
        countries[row[QLatin1String("numeric")].toString().toInt()] = row.toObject();
    return countries;
}

/// The present codes of the countries whose names have changed since.
const std::map<std::string, QString> kRenamed{
    {"Cape Verde", QStringLiteral("CPV")},
    {"Congo, the Democratic Republic of the", QStringLiteral("COD")},
    {"Macedonia, the former Yugoslav Republic of", QStringLiteral("MKD")},
    {"Swaziland", QStringLiteral("SWZ")},
    {"Turkey", QStringLiteral("TUR")},
};

bool isNameOf(const QJsonObject& country, const char* name) {
    if (const auto renamed = kRenamed.find(name); renamed != kRenamed.end())
        return country[QLatin1String("alpha_3")].toString() == renamed->second;
    const QString text = QString::fromUtf8(name);
    for (const char* key : {"name", "common_name", "official_name"})
        if (country[QLatin1String(key)].toString() == text)
            return true;
    return false;
}

std::int32_t codeOf(const char* name) {
    for (const config::Country& country : config::countries())
        if (qstrcmp(country.name, name) == 0)
            return country.code;
    return 0;
}

} // namespace

TEST(CountryTable, HoldsEachCountryOnce) {
    std::set<std::int32_t> codes;
    for (const config::Country& country : config::countries())
        codes.insert(country.code);
    EXPECT_EQ(codes.size(), 249U);
}

TEST(CountryTable, HasTheCodesOfTheStandard) {
    const auto list = independentList();
    ASSERT_EQ(list.size(), 249U) << "the package iso-codes is missing, or has other countries";
    for (const config::Country& country : config::countries()) {
        const auto found = list.find(country.code);
        ASSERT_NE(found, list.end()) << country.name;
        EXPECT_TRUE(isNameOf(found->second, country.name)) << country.code << country.name;
    }
}

TEST(CountryTable, IsInTheOrderOfTheNames) {
    // Bare letters, where a collation would depend on the system.
    const auto plain = [](const char* name) {
        QString text;
        for (const QChar character :
             QString::fromUtf8(name).normalized(QString::NormalizationForm_D))
            if (character.isLetter() || character == QLatin1Char(' ') ||
                character == QLatin1Char(','))
                text += character.toLower();
        return text;
    };
    QStringList names;
    for (const config::Country& country : config::countries())
        names << plain(country.name);
    QStringList sorted = names;
    sorted.sort();
    EXPECT_EQ(names.join(QLatin1Char('\n')).toStdString(),
              sorted.join(QLatin1Char('\n')).toStdString());
}

TEST(CountryTable, KnowsAFew) {
    EXPECT_EQ(codeOf("Afghanistan"), 4);
    EXPECT_EQ(codeOf("Åland Islands"), 248);
    EXPECT_EQ(codeOf("Canada"), 124);
    EXPECT_EQ(codeOf("Germany"), 276);
    EXPECT_EQ(codeOf("United Kingdom"), 826);
    EXPECT_EQ(codeOf("United States"), 840);
    EXPECT_EQ(codeOf("Zimbabwe"), 716);
}

TEST(CountryTable, KeepsItsOrderInEnglish) {
    for (const QLocale& language : {QLocale::c(), QLocale(QLocale::English)}) {
        const auto named = config::countriesFor(language);
        ASSERT_EQ(named.size(), config::countryCount);
        for (std::size_t row = 0; row < named.size(); ++row) {
            EXPECT_EQ(named[row].code, config::countries()[row].code);
            EXPECT_EQ(named[row].name, QString::fromUtf8(config::countries()[row].name));
        }
    }
}

TEST(CountryTable, IsSortedAsAReaderOfTheLanguageExpects) {
    std::vector<config::NamedCountry> countries;
    for (const char* name :
         {"Zypern", "Österreich", "Oman", "Polen", "Ägypten", "Albanien", "Afghanistan"})
        countries.push_back({static_cast<std::int32_t>(countries.size()), QString::fromUtf8(name)});
    config::sortFor(QLocale(QLocale::German), countries);
    std::vector<std::string> names;
    for (const auto& [code, name] : countries)
        names.push_back(std::to_string(code) + " " + name.toStdString());
    EXPECT_EQ(names, (std::vector<std::string>{"6 Afghanistan", "4 Ägypten", "5 Albanien", "2 Oman",
                                               "1 Österreich", "3 Polen", "0 Zypern"}));
}
