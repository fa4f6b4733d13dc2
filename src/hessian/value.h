// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <stdexcept>

#include "hessian/kinds.h"
#include "hessian/reader.h"
#include "hessian/record_layout.h"
#include "hessian/writer.h"

/// Writes, reads and measures any value of the wire by its C++ type. A new record, enumeration or
/// proxy only needs a description; nothing is added here.
namespace hessianser {

template <Value T>
void writeValue(const T& value, std::string& out);

/// The number of bytes that `writeValue` appends.
template <Value T>
std::uint32_t sizeOfValue(const T& value);

/// Replaces the content of `value`.
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
template <class T, class A>
void readList(Cursor& in, std::vector<T, A>& list);

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

/// Reserves room for the remaining elements, assuming that they are like those read so far and as
/// far as the remaining bytes allow. The length in front of a list can't be trusted.
template <class T, class A>
void growList(std::vector<T, A>& list, std::size_t bytesRead, std::size_t bytesLeft) {
    const std::size_t size = list.size();
    if (size == list.max_size())
        throw std::length_error("list<T> too long");
    const std::size_t likely = size * bytesLeft / std::max<std::size_t>(bytesRead, 1);
    const std::size_t room = std::max<std::size_t>({likely, size, 1});
    list.reserve(size + std::min(room, list.max_size() - size));
}

template <class T, class A>
void readList(Cursor& in, std::vector<T, A>& list) {
    list.clear();
    const std::uint32_t all = in.remaining;
    if (!readListStart(in))
        return;
    do {
        if (list.size() == list.capacity())
            growList(list, all - in.remaining, in.remaining);
        if constexpr (Record<T>)
            readRecord(in, list.emplace_back());
        else if constexpr (fixedSize<T> != 0)
            list.push_back(readValue<T>(in));
        else
            readValue(in, list.emplace_back());
    } while (readListContinues(in));
}

/// Appends the fixed bytes of the members from `I` up to the next one of variable size, then
/// overwrites the numbers among them: one copy instead of one per key and number.
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
    if constexpr (Layout::count == 0)
        out.append(Layout::mapStart);
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
        [[maybe_unused]] const auto add =
            [&]<std::size_t J>(std::integral_constant<std::size_t, J>) {
                if constexpr (!Layout::places[J].fixed)
                    size += sizeOfValue(record.*std::get<J>(Layout::fields).member);
            };
        (add(std::integral_constant<std::size_t, I>{}), ...);
    }
    (typename Layout::Indices{});
    return size;
}

/// Reads member `I` if it comes next with its key in the plainest form. A single comparison checks
/// the key and a number's tag; on a mismatch nothing is consumed.
template <class R, std::size_t I>
void readIfNext(Cursor& in, R& record) {
    using Layout = RecordLayout<R>;
    using Member = typename Layout::template Member<I>;
    constexpr std::string_view head = Layout::head(I);
    constexpr std::size_t numberSize = Layout::numberSize(I);
    if (in.remaining < head.size() + numberSize || !in.startsWith(head))
        return;
    in.skip(head.size());
    auto& value = record.*std::get<I>(Layout::fields).member;
    if constexpr (numberSize == 0)
        readValue(in, value);
    else if constexpr (Int64<Member>)
        value = static_cast<Member>(loadBigEndian<std::uint64_t>(in.pos));
    else if constexpr (Int32<Member>)
        value = static_cast<Member>(loadBigEndian<std::uint32_t>(in.pos));
    else
        value = enumerationFrom<Member>(
            static_cast<std::int32_t>(loadBigEndian<std::uint32_t>(in.pos)));
    in.skip(numberSize);
}

/// Reads the next member by name, and fails where `readIfNext` found nothing it could read.
template <class R>
void readByName(Cursor& in, R& record) {
    using Layout = RecordLayout<R>;
    std::string_view name;
    std::string scratch;
    readMemberName(in, name, scratch);
    const bool known = [&]<std::size_t... I>(std::index_sequence<I...>) {
        [[maybe_unused]] const auto readIf = [&](std::string_view key, const auto& field) {
            if (name != key)
                return false;
            readValue(in, record.*field.member);
            return true;
        };
        return (readIf(std::get<I>(Layout::fields).key, std::get<I>(Layout::fields)) || ...);
    }
    (typename Layout::Indices{});
    if (!known)
        fail("Unknown map field type");
}

/// Members may come in any order, and any of them may be missing. Each round reads those that
/// follow the order of the description, so messages of an agent take a single round.
template <class R>
void readRecord(Cursor& in, R& fresh) {
    using Layout = RecordLayout<R>;
    if (in.startsWith(Layout::mapStart))
        in.skip(Layout::mapStart.size());
    else
        readMapStart(in, R::wireType);
    while (!in.at('z')) {
        const std::uint32_t before = in.remaining;
        [&]<std::size_t... I>(std::index_sequence<I...>) {
            (readIfNext<R, I>(in, fresh), ...);
        }
        (typename Layout::Indices{});
        if (in.remaining == before)
            readByName(in, fresh);
    }
    readEnd(in);
}

} // namespace detail
} // namespace hessianser
