// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/tfa_manager.h"

#include "tests/api/golden_configuration_records.h"
#include "tests/api/received.h"

namespace {

using namespace hessiancln;

class TFAManagerTest : public ReceivingTest {
protected:
    const boost::shared_ptr<TFAManager> manager = proxyAt<TFAManager>("here");
};

TEST_F(TFAManagerTest, getUserEmails) {
    expect("c 01 00 m 00 0D 'getUserEmails' z",
           std::string("r 01 00 V ") + golden::user_email + ' ' + golden::user_email + " z z");
    const auto emails = manager->getUserEmails();
    ASSERT_EQ(emails.size(), 2u);
    EXPECT_EQ(emails[1].username, "zoë");
}

TEST_F(TFAManagerTest, is2FAEnabled) {
    expect("c 01 00 m 00 0C 'is2FAEnabled' z", "r 01 00 T z");
    EXPECT_TRUE(manager->is2FAEnabled());
}

TEST_F(TFAManagerTest, requestCode) {
    expect("c 01 00 m 00 0B 'requestCode' I 00 00 00 02 z", "r 01 00 S 00 0F 'zoe@example.org' z");
    EXPECT_EQ(manager->requestCode(2), "zoe@example.org");
}

TEST_F(TFAManagerTest, setUserEmails) {
    expect(std::string("c 01 00 m 00 0D 'setUserEmails' V ") + golden::user_email +
               " M t 00 19 'com.norvel.api.user_email' S 00 08 'username' S 00 00 S 00 06 'domain' "
               "S 00 00 S 00 05 'email' S 00 00 z z z",
           "r 01 00 z");
    manager->setUserEmails({{"zoë", "BÜRO", "zoe@example.org"}, {}});
}

TEST_F(TFAManagerTest, setUserEmailsToNone) {
    expect("c 01 00 m 00 0D 'setUserEmails' V z z", "r 01 00 z");
    manager->setUserEmails({});
}

TEST_F(TFAManagerTest, validateCode) {
    expect("c 01 00 m 00 0C 'validateCode' S 00 06 '048213' I 00 00 00 01 z", "r 01 00 z");
    manager->validateCode("048213", 1);
}

TEST_F(TFAManagerTest, validateCodeThatIsWrong) {
    expect("c 01 00 m 00 0C 'validateCode' S 00 01 '0' I 00 00 00 01 z",
           "r 01 00 f S 00 04 'code' S 00 01 '9' S 00 07 'message' S 00 0A 'Wrong code' z z");
    expectFault([this] { manager->validateCode("0", 1); }, "Wrong code");
}

} // namespace
