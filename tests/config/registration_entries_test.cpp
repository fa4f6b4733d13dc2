// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include "config/registration_entries.h"

using config::problemOf;
using config::RegistrationEntries;

namespace {

const auto secretKey = QStringLiteral("secret");
const auto other = QStringLiteral("Secret");

RegistrationEntries good() {
    RegistrationEntries entries;
    entries.customerName = QStringLiteral("Ada & Co");
    entries.accountNumber = QStringLiteral("1");
    entries.clientNumber = QStringLiteral(" 123456789012 ");
    entries.addresses = 1;
    entries.privateKey = entries.privateKeyConfirm = secretKey;
    entries.accountKeyType = QStringLiteral("AES128");
    entries.accountKey = entries.accountKeyConfirm = secretKey;
    entries.countryChosen = entries.employeesChosen = entries.industryChosen = true;
    return entries;
}

/// The problem reported once the entries have been spoiled.
template <class Spoil>
std::string problem(const Spoil& spoil) {
    RegistrationEntries entries = good();
    spoil(entries);
    return problemOf(entries).toStdString();
}

} // namespace

TEST(RegistrationEntries, MayBeSaved) {
    EXPECT_EQ(problemOf(good()), QString());
}

TEST(RegistrationEntries, NeedACustomer) {
    EXPECT_EQ(problem([](auto& it) { it.customerName = QStringLiteral(" \t"); }),
              "Customer name is needed for initialization.");
}

TEST(RegistrationEntries, NeedAnAccount) {
    EXPECT_EQ(problem([](auto& it) { it.accountNumber = QStringLiteral(" "); }),
              "Account Number is needed for initialization.");
}

TEST(RegistrationEntries, NeedAClientNumber) {
    EXPECT_EQ(problem([](auto& it) { it.clientNumber = QStringLiteral("  "); }),
              "Client Number is needed for initialization.");
}

TEST(RegistrationEntries, NeedAClientNumberOfTwelveCharacters) {
    const char* const message = "Client number needs to have 12 characters.";
    EXPECT_EQ(problem([](auto& it) { it.clientNumber = QStringLiteral("12345678901"); }), message);
    EXPECT_EQ(problem([](auto& it) { it.clientNumber = QStringLiteral("1234567890123"); }),
              message);
    EXPECT_EQ(problem([](auto& it) { it.clientNumber = QStringLiteral(" 12345678901"); }), message);
    EXPECT_EQ(problem([](auto& it) { it.clientNumber = QStringLiteral("abcdefghijkl"); }), "");
}

TEST(RegistrationEntries, NeedAnAddress) {
    EXPECT_EQ(problem([](auto& it) { it.addresses = 0; }),
              "Need at least one Tarn-System address for initialization.");
}

TEST(RegistrationEntries, NeedThePrivateKeyTwice) {
    EXPECT_EQ(problem([](auto& it) { it.privateKeyConfirm = other; }),
              "The private encryption keys you typed do not match.");
}

TEST(RegistrationEntries, NeedAPrivateKey) {
    EXPECT_EQ(problem([](auto& it) { it.privateKey = it.privateKeyConfirm = QString(); }),
              "Private key is needed for initialization.");
    EXPECT_EQ(problem([](auto& it) { it.privateKey = it.privateKeyConfirm = QStringLiteral(" "); }),
              "");
}

TEST(RegistrationEntries, NeedAnAccountKeyUnlessItsTypeIsNone) {
    const auto without = [](auto& it) { it.accountKey = it.accountKeyConfirm = QString(); };
    EXPECT_EQ(problem(without), "Please select \"NONE\" as the account key ecnryption type if you "
                                "want to input the empty account key!!");
    EXPECT_EQ(problem([&](auto& it) {
                  without(it);
                  it.accountKeyType = QStringLiteral("NONE");
              }),
              "");
}

TEST(RegistrationEntries, NeedTheAccountKeyTwice) {
    const char* const message = "The account encryption keys you typed do not match.";
    EXPECT_EQ(problem([](auto& it) { it.accountKeyConfirm = other; }), message);
    EXPECT_EQ(problem([](auto& it) {
                  it.accountKeyType = QStringLiteral("NONE");
                  it.accountKey = QString();
              }),
              message);
}

TEST(RegistrationEntries, MayHaveAnAccountKeyOfNoType) {
    EXPECT_EQ(problem([](auto& it) { it.accountKeyType = QStringLiteral("NONE"); }), "");
}

TEST(RegistrationEntries, NeedEachChoice) {
    EXPECT_EQ(problem([](auto& it) { it.countryChosen = false; }), "Please select a country.");
    EXPECT_EQ(problem([](auto& it) { it.employeesChosen = false; }),
              "Please select a number of employees.");
    EXPECT_EQ(problem([](auto& it) { it.industryChosen = false; }),
              "Please select a industry vertical.");
}

// From the last check to the first: each step adds a problem that precedes those so far.
TEST(RegistrationEntries, AreCheckedInOrder) {
    RegistrationEntries entries = good();
    const auto reported = [&entries] { return problemOf(entries).toStdString(); };
    entries.industryChosen = false;
    EXPECT_EQ(reported(), "Please select a industry vertical.");
    entries.employeesChosen = false;
    EXPECT_EQ(reported(), "Please select a number of employees.");
    entries.countryChosen = false;
    EXPECT_EQ(reported(), "Please select a country.");
    entries.accountKeyConfirm = other;
    EXPECT_EQ(reported(), "The account encryption keys you typed do not match.");
    entries.accountKey = QString();
    EXPECT_EQ(reported(),
              "Please select \"NONE\" as the account key ecnryption type if you want to "
              "input the empty account key!!");
    entries.privateKey = entries.privateKeyConfirm = QString();
    EXPECT_EQ(reported(), "Private key is needed for initialization.");
    entries.privateKeyConfirm = other;
    EXPECT_EQ(reported(), "The private encryption keys you typed do not match.");
    entries.addresses = 0;
    EXPECT_EQ(reported(), "Need at least one Tarn-System address for initialization.");
    entries.clientNumber = QStringLiteral("1");
    EXPECT_EQ(reported(), "Client number needs to have 12 characters.");
    entries.clientNumber = QString();
    EXPECT_EQ(reported(), "Client Number is needed for initialization.");
    entries.accountNumber = QString();
    EXPECT_EQ(reported(), "Account Number is needed for initialization.");
    entries.customerName = QString();
    EXPECT_EQ(reported(), "Customer name is needed for initialization.");
}
