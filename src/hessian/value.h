// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>

#include "hessian/kinds.h"
#include "hessian/reader.h"
#include "hessian/record_layout.h"
#include "hessian/writer.h"

/// Any value that the wire knows, written, measured and read by its C++ type. Whoever adds a
/// record, an enumeration or a proxy describes it; nothing is added here.
namespace hessianser {

template <Value T>
void writeValue(const T& value, std::string& out);

/// The bytes that `writeValue` appends.
template <Value T>
std::uint32_t sizeOfValue(const T& value);

/// Replaces what stood in `value`.
template <Value T>
void readValue(Cursor& in, T& value);

template <Value T>
T readValue(Cursor& in) {
    T value{};
    readValue(in, value);
    return value;
}

namespace detail {

template <class R>
void writeRecord(const R& record, std::string& out);
template <class R>
std::uint32_t sizeOfRecord(const R& record);
template <class R>
void readRecord(Cursor& in, R& fresh);
template <class T>
void readList(Cursor& in, std::vector<T>& list);

} // namespace detail

template <Value T>
void writeValue(const T& value, std::string& out) {
    if constexpr (Boolean<T>) {
        writeBool(value, out);
    } else if constexpr (Int32<T> || Enumeration<T>) {
        writeInt32(static_cast<std::int32_t>(value), out);
    } else if constexpr (Int64<T>) {
        writeInt64(static_cast<std::int64_t>(value), out);
    } else if constexpr (String<T>) {
        writeString(value, out);
    } else if constexpr (Bytes<T>) {
        writeBinary(value, out);
    } else if constexpr (Record<T>) {
        detail::writeRecord(value, out);
    } else if constexpr (List<T>) {
        out.push_back('V');
        for (const auto& element : value)
            writeValue(element, out);
        writeEnd(out);
    } else if (const std::string* url = RemoteTraits<T>::url(value)) {
        writeRemote(RemoteTraits<T>::typeName(), *url, out);
    } else {
        writeNull(out);
    }
}

template <Value T>
std::uint32_t sizeOfValue(const T& value) {
    if constexpr (fixedSize<T> != 0) {
        return fixedSize<T>;
    } else if constexpr (String<T>) {
        return sizeOfString(value);
    } else if constexpr (Bytes<T>) {
        return sizeOfBinary(value);
    } else if constexpr (Record<T>) {
        return detail::sizeOfRecord(value);
    } else if constexpr (List<T>) {
        std::uint32_t size = 2;
        for (const auto& element : value)
            size += sizeOfValue(element);
        return size;
    } else {
        const std::string* url = RemoteTraits<T>::url(value);
        return url ? sizeOfRemote(RemoteTraits<T>::typeName(), *url) : sizeOfNull;
    }
}

template <Value T>
void readValue(Cursor& in, T& value) {
    if constexpr (Boolean<T>) {
        value = readBool(in);
    } else if constexpr (Int32<T>) {
        value = static_cast<T>(readInt32(in));
    } else if constexpr (Int64<T>) {
        value = static_cast<T>(readInt64(in));
    } else if constexpr (Enumeration<T>) {
        value = enumerationFrom<T>(readInt32(in));
    } else if constexpr (String<T>) {
        readString(in, value);
    } else if constexpr (Bytes<T>) {
        value = readBinary(in);
    } else if constexpr (Record<T>) {
        value = T{};
        detail::readRecord(in, value);
    } else if constexpr (List<T>) {
        detail::readList(in, value);
    } else if (in.at('N')) {
        readNull(in);
        value = T();
    } else {
        value = RemoteTraits<T>::fromUrl(readRemote(in).url);
    }
}

namespace detail {

template <class T>
void readList(Cursor& in, std::vector<T>& list) {
    list.clear();
    if (!readListStart(in))
        return;
    do {
        if (list.size() == list.max_size())
            throw std::length_error("list<T> too long");
        T& element = list.emplace_back();
        if constexpr (Record<T>)
            readRecord(in, element);
        else
            readValue(in, element);
    } while (readListContinues(in));
}

/// Appends the fixed bytes of the members from `I` up to the next one of varying size, then
/// overwrites the numbers among them: one copy in place of one for each key and number.
template <class R, std::size_t I>
void writeMember(const R& record, std::string& out) {
    using Layout = RecordLayout<R>;
    using Member = typename Layout::template Member<I>;
    constexpr std::size_t start = Layout::runStart(I);
    if constexpr (Layout::startsRun(I))
        out.append(Layout::image.data() + start, Layout::runEnd(I) - start);
    const auto& value = record.*std::get<I>(Layout::fields).member;
    if constexpr (fixedSize<Member> == 0) {
        writeValue(value, out);
    } else {
        char* at = out.data() + out.size() - (Layout::runEnd(I) - Layout::places[I].value);
        if constexpr (Boolean<Member>)
            *at = value ? 'T' : 'F';
        else if constexpr (Int64<Member>)
            storeBigEndian(static_cast<std::uint64_t>(value), at + 1);
        else
            storeBigEndian(static_cast<std::uint32_t>(value), at + 1);
    }
}

template <class R>
void writeRecord(const R& record, std::string& out) {
    using Layout = RecordLayout<R>;
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        (writeMember<R, I>(record, out), ...);
    }
    (typename Layout::Indices{});
    if constexpr (Layout::endsOpen)
        writeEnd(out);
}

template <class R>
std::uint32_t sizeOfRecord(const R& record) {
    using Layout = RecordLayout<R>;
    std::uint32_t size = Layout::image.size();
    [&]<std::size_t... I>(std::index_sequence<I...>) {
        const auto add = [&]<std::size_t J>(std::integral_constant<std::size_t, J>) {
            if constexpr (fixedSize<typename Layout::template Member<J>> == 0)
                size += sizeOfValue(record.*std::get<J>(Layout::fields).member);
        };
        (add(std::integral_constant<std::size_t, I>{}), ...);
    }
    (typename Layout::Indices{});
    return size;
}

/// Reads member `I` if its key stands next.
template <class R, std::size_t I>
bool readExpectedMember(Cursor& in, R& record) {
    constexpr std::string_view key = RecordLayout<R>::key(I);
    if (!in.startsWith(key))
        return false;
    in.skip(key.size());
    readValue(in, record.*std::get<I>(RecordLayout<R>::fields).member);
    return true;
}

template <class R, std::size_t I>
void readMemberValue(Cursor& in, R& record) {
    readValue(in, record.*std::get<I>(RecordLayout<R>::fields).member);
}

/// Reads members in any order from `expected` on, up to the record's end.
template <class R>
void readMembers(Cursor& in, R& record) {
    using Layout = RecordLayout<R>;
    using ReadMember = void (*)(Cursor&, R&);
    static constexpr auto readers = []<std::size_t... I>(std::index_sequence<I...>) {
        return std::array<ReadMember, sizeof...(I)>{readMemberValue<R, I>...};
    }
    (typename Layout::Indices{});
    std::string_view name;
    std::string scratch;
    while (readMemberName(in, name, scratch)) {
        const std::size_t index = Layout::find(name);
        if (index == readers.size())
            fail("Unknown map field type");
        readers[index](in, record);
    }
}

template <class R>
void readRecord(Cursor& in, R& fresh) {
    using Layout = RecordLayout<R>;
    if (in.startsWith(Layout::mapStart))
        in.skip(Layout::mapStart.size());
    else
        readMapStart(in, R::wireType);
    const bool inOrder = [&]<std::size_t... I>(std::index_sequence<I...>) {
        return (readExpectedMember<R, I>(in, fresh) && ...);
    }
    (typename Layout::Indices{});
    if (inOrder && in.at('z'))
        in.skip(1);
    else
        readMembers(in, fresh);
}

} // namespace detail
} // namespace hessianser
