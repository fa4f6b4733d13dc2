// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "api/bind_proxies.h"

#include <string>
#include <vector>

#include "api/client_connection.h"
#include "tests/support/proxy_test.h"

namespace {

using namespace hessiancln;

using Activity = boost::shared_ptr<GenericActivity>;

/// A record with references at every depth.
struct Leaf {
    std::int32_t number = 0;
    Activity one;

    static constexpr std::string_view wireType = "test.Leaf";
    static constexpr auto fields() {
        return hessianser::fields(hessianser::field("number", &Leaf::number),
                                  hessianser::field("one", &Leaf::one));
    }
};

struct Tree {
    std::string name;
    Leaf leaf;
    std::vector<Leaf> leaves;

    static constexpr std::string_view wireType = "test.Tree";
    static constexpr auto fields() {
        return hessianser::fields(hessianser::field("name", &Tree::name),
                                  hessianser::field("leaf", &Tree::leaf),
                                  hessianser::field("leaves", &Tree::leaves));
    }
};

static_assert(detail::holdsProxies<Activity>());
static_assert(detail::holdsProxies<std::vector<Activity>>());
static_assert(detail::holdsProxies<std::vector<std::vector<Activity>>>());
static_assert(detail::holdsProxies<Tree>());
static_assert(detail::holdsProxies<sspi_login_info>());
static_assert(!detail::holdsProxies<std::string>());
static_assert(!detail::holdsProxies<std::vector<std::string>>());
static_assert(!detail::holdsProxies<backup_set_overview_info>());
static_assert(!detail::holdsProxies<std::vector<activity_log_info>>());

class BindTest : public support::ProxyTest {
protected:
    static Activity unbound() {
        return boost::make_shared<GenericActivity>("u", false, 0u, std::string());
    }

    static Tree treeOfThree() {
        Tree tree;
        tree.leaf.one = unbound();
        tree.leaves.resize(2);
        tree.leaves[0].one = unbound();
        tree.leaves[1].one = unbound();
        return tree;
    }
};

TEST_F(BindTest, ReachesEveryProxyInAValue) {
    Tree tree = treeOfThree();
    bindProxies(tree, agent);
    EXPECT_EQ(tree.leaf.one->getDispatcher(), agent);
    EXPECT_EQ(tree.leaves[0].one->getDispatcher(), agent);
    EXPECT_EQ(tree.leaves[1].one->getDispatcher(), agent);
}

TEST_F(BindTest, LeavesNullReferencesAlone) {
    Tree tree = treeOfThree();
    tree.leaf.one.reset();
    tree.leaves[0].one.reset();
    bindProxies(tree, agent);
    EXPECT_FALSE(tree.leaf.one);
    EXPECT_FALSE(tree.leaves[0].one);
    EXPECT_EQ(tree.leaves[1].one->getDispatcher(), agent);
}

TEST_F(BindTest, LeavesAProxyItsOwnDispatcher) {
    const auto other = boost::make_shared<support::ScriptedDispatcher>();
    Activity bound = unbound();
    bound->setDispatcher(other);
    bindProxies(bound, agent);
    EXPECT_EQ(bound->getDispatcher(), other);
}

TEST_F(BindTest, ChildrenTakeTheDispatcherThatTheParentHasNow) {
    const auto stream = boost::make_shared<support::ScriptedDispatcher>();
    const auto root = proxyAt<ClientConnection>("here");
    root->setDispatcher(stream);
    EXPECT_EQ(root->getDispatcher(), stream);
    stream->expect("here", "c 01 00 m 00 0A 'backup_set' I 00 00 00 01 z",
                   "r 01 00 r t 00 18 'com.norvel.api.BackupSet' S 00 03 'set' z");
    stream->expect("set", "c 01 00 m 00 0B 'getSchedule' z",
                   "r 01 00 r t 00 17 'com.norvel.api.Schedule' S 00 03 'sch' z");
    stream->expectRelease("sch");
    stream->expectRelease("set");
    const auto set = root->backup_set(1);
    EXPECT_EQ(set->getDispatcher(), stream);
    EXPECT_EQ(set->getSchedule()->getDispatcher(), stream);
}

} // namespace
