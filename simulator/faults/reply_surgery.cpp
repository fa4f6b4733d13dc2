// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "simulator/faults/reply_surgery.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "hessian/reader.h"
#include "hessian/writer.h"

namespace simulator {
namespace {

/// A value of any kind; only records and lists are decomposed.
struct Member;

struct Node {
    enum class Kind { Scalar, Record, List } kind = Kind::Scalar;
    std::string bytes; ///< for a scalar; the type for a record
    std::vector<Member> members;
    std::vector<Node> elements;
};

struct Member {
    std::string key;
    Node value;
};

Node parse(hessianser::Cursor& in);

void skipScalar(hessianser::Cursor& in) {
    using namespace hessianser;
    if (in.at('N'))
        readNull(in);
    else if (in.at('I'))
        readInt32(in);
    else if (in.at('L'))
        readInt64(in);
    else if (in.at('S') || in.at('s'))
        readString(in);
    else if (in.at('B') || in.at('b'))
        readBinary(in);
    else if (in.at('r'))
        readRemote(in);
    else
        readBool(in);
}

Node parseRecord(hessianser::Cursor& in) {
    Node node;
    node.kind = Node::Kind::Record;
    in.skip(1);
    node.bytes = hessianser::readType(in);
    std::string_view name;
    std::string scratch;
    while (hessianser::readMemberName(in, name, scratch)) {
        std::string key(name);
        node.members.push_back({std::move(key), parse(in)});
    }
    return node;
}

Node parseList(hessianser::Cursor& in) {
    Node node;
    node.kind = Node::Kind::List;
    if (hessianser::readListStart(in))
        do
            node.elements.push_back(parse(in));
        while (hessianser::readListContinues(in));
    return node;
}

Node parse(hessianser::Cursor& in) {
    if (in.at('M'))
        return parseRecord(in);
    if (in.at('V'))
        return parseList(in);
    const char* const begin = in.pos;
    skipScalar(in);
    Node node;
    node.bytes.assign(begin, in.pos);
    return node;
}

struct Form {
    bool typedLists = false;
};

void write(const Node& node, Form form, std::string& out) {
    using namespace hessianser;
    if (node.kind == Node::Kind::Scalar) {
        out += node.bytes;
        return;
    }
    if (node.kind == Node::Kind::Record) {
        out += 'M';
        writeType(node.bytes, out);
    } else {
        out += 'V';
        if (form.typedLists) {
            writeType("list", out);
            std::string length;
            writeInt32(static_cast<std::int32_t>(node.elements.size()), length);
            out += 'l' + length.substr(1);
        }
    }
    for (const auto& [key, value] : node.members) {
        writeString(key, out);
        write(value, form, out);
    }
    for (const Node& element : node.elements)
        write(element, form, out);
    writeEnd(out);
}

template <class Change>
void eachRecord(Node& node, const Change& change) {
    for (auto& [key, value] : node.members)
        eachRecord(value, change);
    for (Node& element : node.elements)
        eachRecord(element, change);
    if (node.kind == Node::Kind::Record)
        change(node);
}

Node scalar(std::int32_t number) {
    Node node;
    hessianser::writeInt32(number, node.bytes);
    return node;
}

/// The value of a reply; no value for a fault or an empty reply.
std::optional<Node> valueOf(const std::string& reply) {
    hessianser::Cursor in(reply);
    if (hessianser::isFault(in))
        return std::nullopt;
    hessianser::readReplyStart(in);
    if (hessianser::isFault(in) || in.at('z'))
        return std::nullopt;
    return parse(in);
}

std::string replyOf(const Node& value, Form form = {}) {
    std::string reply("r\x01\0", 3);
    write(value, form, reply);
    hessianser::writeEnd(reply);
    return reply;
}

template <class Change>
std::string changed(const std::string& reply, const Change& change) {
    std::optional<Node> value = valueOf(reply);
    if (!value)
        return reply;
    change(*value);
    return replyOf(*value);
}

} // namespace

std::string withKey(const std::string& reply, const std::string& key) {
    return changed(reply, [&key](Node& value) {
        eachRecord(value, [&key](Node& record) { record.members.push_back({key, scalar(0)}); });
    });
}

std::string withNumber(const std::string& reply, const std::string& key, std::int32_t number) {
    return changed(reply, [&](Node& value) {
        if (key.empty() && value.bytes.starts_with('I'))
            value = scalar(number);
        eachRecord(value, [&](Node& record) {
            for (auto& [name, member] : record.members)
                if (name == key && member.bytes.starts_with('I'))
                    member = scalar(number);
        });
    });
}

std::string withNull(const std::string&) {
    Node null;
    hessianser::writeNull(null.bytes);
    return replyOf(null);
}

std::string withReversedKeys(const std::string& reply) {
    return changed(reply, [](Node& value) {
        eachRecord(value, [](Node& record) {
            std::reverse(record.members.begin(), record.members.end());
        });
    });
}

std::string withTypedLists(const std::string& reply) {
    const std::optional<Node> value = valueOf(reply);
    return value ? replyOf(*value, Form{true}) : reply;
}

} // namespace simulator
