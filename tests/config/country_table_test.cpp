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

/// Countries by their numeric codes, from a package of the system.
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

/// The current codes of countries that have been renamed since.
const std::map<std::string, QString> renamedCountries{
    {"Cape Verde", QStringLiteral("CPV")},
    {"Congo, the Democratic Republic of the", QStringLiteral("COD")},
    {"Macedonia, the former Yugoslav Republic of", QStringLiteral("MKD")},
    {"Swaziland", QStringLiteral("SWZ")},
    {"Turkey", QStringLiteral("TUR")},
};

/// The expected names in their expected order.
const char* const namesInOrder =
    "Afghanistan;Åland Islands;Albania;Algeria;American Samoa;Andorra;Angola;Anguilla;"
    "Antarctica;Antigua and Barbuda;Argentina;Armenia;Aruba;Australia;Austria;Azerbaijan;"
    "Bahamas;Bahrain;Bangladesh;Barbados;Belarus;Belgium;Belize;Benin;Bermuda;Bhutan;"
    "Bolivia, Plurinational State of;Bonaire, Sint Eustatius and Saba;"
    "Bosnia and Herzegovina;Botswana;Bouvet Island;Brazil;British Indian Ocean Territory;"
    "Brunei Darussalam;Bulgaria;Burkina Faso;Burundi;Cambodia;Cameroon;Canada;Cape Verde;"
    "Cayman Islands;Central African Republic;Chad;Chile;China;Christmas Island;"
    "Cocos (Keeling) Islands;Colombia;Comoros;Congo;Congo, the Democratic Republic of the;"
    "Cook Islands;Costa Rica;Côte d'Ivoire;Croatia;Cuba;Curaçao;Cyprus;Czech Republic;"
    "Denmark;Djibouti;Dominica;Dominican Republic;Ecuador;Egypt;El Salvador;"
    "Equatorial Guinea;Eritrea;Estonia;Ethiopia;Falkland Islands (Malvinas);Faroe Islands;"
    "Fiji;Finland;France;French Guiana;French Polynesia;French Southern Territories;Gabon;"
    "Gambia;Georgia;Germany;Ghana;Gibraltar;Greece;Greenland;Grenada;Guadeloupe;Guam;"
    "Guatemala;Guernsey;Guinea;Guinea-Bissau;Guyana;Haiti;"
    "Heard Island and McDonald Islands;Holy See (Vatican City State);Honduras;Hong Kong;"
    "Hungary;Iceland;India;Indonesia;Iran, Islamic Republic of;Iraq;Ireland;Isle of Man;"
    "Israel;Italy;Jamaica;Japan;Jersey;Jordan;Kazakhstan;Kenya;Kiribati;"
    "Korea, Democratic People's Republic of;Korea, Republic of;Kuwait;Kyrgyzstan;"
    "Lao People's Democratic Republic;Latvia;Lebanon;Lesotho;Liberia;Libya;Liechtenstein;"
    "Lithuania;Luxembourg;Macao;Macedonia, the former Yugoslav Republic of;Madagascar;"
    "Malawi;Malaysia;Maldives;Mali;Malta;Marshall Islands;Martinique;Mauritania;Mauritius;"
    "Mayotte;Mexico;Micronesia, Federated States of;Moldova, Republic of;Monaco;Mongolia;"
    "Montenegro;Montserrat;Morocco;Mozambique;Myanmar;Namibia;Nauru;Nepal;Netherlands;"
    "New Caledonia;New Zealand;Nicaragua;Niger;Nigeria;Niue;Norfolk Island;"
    "Northern Mariana Islands;Norway;Oman;Pakistan;Palau;Palestine, State of;Panama;"
    "Papua New Guinea;Paraguay;Peru;Philippines;Pitcairn;Poland;Portugal;Puerto Rico;Qatar;"
    "Réunion;Romania;Russian Federation;Rwanda;Saint Barthélemy;"
    "Saint Helena, Ascension and Tristan da Cunha;Saint Kitts and Nevis;Saint Lucia;"
    "Saint Martin (French part);Saint Pierre and Miquelon;Saint Vincent and the Grenadines;"
    "Samoa;San Marino;Sao Tome and Principe;Saudi Arabia;Senegal;Serbia;Seychelles;"
    "Sierra Leone;Singapore;Sint Maarten (Dutch part);Slovakia;Slovenia;Solomon Islands;"
    "Somalia;South Africa;South Georgia and the South Sandwich Islands;South Sudan;Spain;"
    "Sri Lanka;Sudan;Suriname;Svalbard and Jan Mayen;Swaziland;Sweden;Switzerland;"
    "Syrian Arab Republic;Taiwan, Province of China;Tajikistan;"
    "Tanzania, United Republic of;Thailand;Timor-Leste;Togo;Tokelau;Tonga;"
    "Trinidad and Tobago;Tunisia;Turkey;Turkmenistan;Turks and Caicos Islands;Tuvalu;"
    "Uganda;Ukraine;United Arab Emirates;United Kingdom;United States;"
    "United States Minor Outlying Islands;Uruguay;Uzbekistan;Vanuatu;"
    "Venezuela, Bolivarian Republic of;Viet Nam;Virgin Islands, British;"
    "Virgin Islands, U.S.;Wallis and Futuna;Western Sahara;Yemen;Zambia;Zimbabwe";

bool isNameOf(const QJsonObject& country, const char* name) {
    if (const auto renamed = renamedCountries.find(name); renamed != renamedCountries.end())
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

TEST(CountryTable, HasThePromisedNamesInTheirOrder) {
    QStringList names;
    for (const config::Country& country : config::countries())
        names << QString::fromUtf8(country.name);
    EXPECT_EQ(names.join(QLatin1Char(';')).toStdString(), namesInOrder);
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
    // Compares bare letters, as a collation would depend on the system.
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

TEST(CountryTable, KeepsItsOrderWhereNothingIsTranslated) {
    // In Swedish, Åland sorts after Zimbabwe, but not in a list in English.
    const auto named = config::countriesFor(QLocale(QLocale::Swedish));
    ASSERT_EQ(named.size(), config::countryCount);
    EXPECT_EQ(named[1].name, QString::fromUtf8("Åland Islands"));
    EXPECT_EQ(named.back().name, QStringLiteral("Zimbabwe"));
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
