// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "insight/log_query.h"

#include <QCoreApplication>

#include "session/text.h"

namespace insight {

namespace {

struct Token {
    QString text;
    bool isWord = false; ///< begins with a quote, so it is no keyword
};

/// Splits at spaces outside quotes. Quotes are removed; an unclosed quote extends to the end of the
/// text.
std::vector<Token> tokensOf(const QString& text) {
    std::vector<Token> tokens(1);
    bool quoted = false;
    for (const QChar c : text) {
        Token& token = tokens.back();
        if (c == QLatin1Char('"')) {
            token.isWord = token.isWord || token.text.isEmpty();
            quoted = !quoted;
        } else if (c.isSpace() && !quoted) {
            tokens.emplace_back();
        } else {
            token.text.append(c);
        }
    }
    std::erase_if(tokens, [](const Token& token) { return token.text.isEmpty(); });
    return tokens;
}

bool isKeyword(const QString& token, QLatin1String english, const QString& translated) {
    return token.compare(english, Qt::CaseInsensitive) == 0 ||
           token.compare(translated, Qt::CaseInsensitive) == 0;
}

/// Adds the text after the keyword and a colon to `terms`; false if the token doesn't match.
bool takeTerm(const QString& token, QLatin1String english, const QString& translated,
              std::vector<std::string>& terms) {
    const int colon = token.indexOf(QLatin1Char(':'));
    if (colon < 1 || !isKeyword(token.left(colon), english, translated))
        return false;
    // Nothing follows the colon yet while the user is typing.
    if (const QString term = token.mid(colon + 1); !term.isEmpty())
        terms.push_back(folded(term));
    return true;
}

/// Adds what a keyword asks for to `query`; false for any other token.
bool takeKeyword(const QString& token, const LogKeywords& keywords, LogQuery& query) {
    if (isKeyword(token, QLatin1String("errors"), keywords.errors))
        query.withErrors = true;
    else if (isKeyword(token, QLatin1String("warnings"), keywords.warnings))
        query.withWarnings = true;
    else
        return takeTerm(token, QLatin1String("set"), keywords.set, query.sets) ||
               takeTerm(token, QLatin1String("type"), keywords.type, query.types);
    return true;
}

} // namespace

bool LogQuery::isEmpty() const {
    return words.empty() && sets.empty() && types.empty() && !withErrors && !withWarnings;
}

LogKeywords LogKeywords::translated() {
    const auto word = [](const char* text) {
        return QCoreApplication::translate("LogKeywords", text);
    };
    return {word(QT_TRANSLATE_NOOP("LogKeywords", "set")),
            word(QT_TRANSLATE_NOOP("LogKeywords", "type")),
            word(QT_TRANSLATE_NOOP("LogKeywords", "errors")),
            word(QT_TRANSLATE_NOOP("LogKeywords", "warnings"))};
}

LogQuery parseLogQuery(const QString& text, const LogKeywords& keywords) {
    LogQuery query;
    for (const auto& [token, isWord] : tokensOf(text))
        if (isWord || !takeKeyword(token, keywords, query))
            query.words.push_back(folded(token));
    return query;
}

std::string folded(const QString& text) {
    return session::toWire(text.toCaseFolded());
}

} // namespace insight
