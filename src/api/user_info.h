// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

#include "hessian/kinds.h"
#include "hessian/record_layout.h"

namespace hessiancln {

/// The customer's number of employees.
enum class EmployeeCountCode : std::int32_t {
    UpTo50 = 1,
    UpTo200 = 2,
    UpTo500 = 3,
    UpTo1000 = 4,
    UpTo5000 = 5,
    UpTo10000 = 6,
    Above10000 = 7,
};
constexpr auto declaredValues(EmployeeCountCode) {
    return hessianser::values({{1, 7}});
}

/// The customer's industry.
enum class IndustryCode : std::int32_t {
    ManufacturingAndEnergy = 1,
    RetailAndWholesale = 2,
    UtilitiesAndTelecommunications = 3,
    Computer = 4,
    BusinessServicesAndConstruction = 5,
    MediaAndLeisure = 6,
    FinancialServices = 7,
    PublicSectorAndHealthcare = 8,
};
constexpr auto declaredValues(IndustryCode) {
    return hessianser::values({{1, 8}});
}

/// Statistics about the customer.
struct user_info {
    std::int32_t country_code = 0; ///< ISO 3166-1 numeric; 0 if unset
    EmployeeCountCode num_of_employees{};
    IndustryCode industry_code{};

    static constexpr std::string_view wireType = "com.norvel.api.user_info";
    template <class R = user_info>
    static constexpr auto fields() {
        using hessianser::field;
        return hessianser::fields(field("country_code", &R::country_code),
                                  field("num_of_employees", &R::num_of_employees),
                                  field("industry_code", &R::industry_code));
    }
};

/// True if the agent's data isn't filled in yet.
constexpr bool isMissing(const user_info& info) {
    return info.country_code == 0 ||
           info.num_of_employees == hessianser::reservedValue<EmployeeCountCode>() ||
           info.industry_code == hessianser::reservedValue<IndustryCode>();
}

} // namespace hessiancln
