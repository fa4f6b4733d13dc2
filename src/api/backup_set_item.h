// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "api/remote_object.h"
#include "hessian/kinds.h"

namespace hessiancln {

enum class BackupSetItemType : std::int32_t {
    Inclusion = 0,
    Exclusion = 1,
    RegularExpression = 2,
};
constexpr auto declaredValues(BackupSetItemType) {
    return hessianser::values({{0, 2}});
}

/// One item that a backup set includes or excludes.
class BackupSetItem : public RemoteObject {
public:
    static constexpr std::string_view family = "BackupSetItem";
    using RemoteObject::RemoteObject;

    /// The path of the item.
    std::string getFolder();
    BackupSetItemType getType();
};

/// Includes a path and everything below it.
class BackupSetInclusionItem : public BackupSetItem {
public:
    static constexpr std::string_view className = "BackupSetInclusionItem";
    using BackupSetItem::BackupSetItem;
};

/// Excludes a path.
class BackupSetFileItem : public BackupSetItem {
public:
    static constexpr std::string_view className = "BackupSetFileItem";
    using BackupSetItem::BackupSetItem;
};

/// Selects or rejects files below its folder by a regular expression.
class BackupSetRegexExclusion : public BackupSetItem {
public:
    static constexpr std::string_view className = "BackupSetRegexExclusion";
    using BackupSetItem::BackupSetItem;

    std::string getExpression();
    /// True if the expression selects files, false if it rejects them.
    bool getInclusion();
    void setInclusion(bool value);
    void setNegate(bool value);
    void setCaseSensitive(bool value);
    void setMatchDirectories(bool value);
};

} // namespace hessiancln
