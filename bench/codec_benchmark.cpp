// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include <cstring>
#include <stdexcept>

#include <benchmark/benchmark.h>

#include "activity_rows.h"
#include "hessian/value.h"
#include "references.h"

namespace {

using hessianser::Cursor;
using hessianser::readValue;

constexpr std::size_t rowCount = 100'000;

const bench::Rows& rows() {
    static const bench::Rows sample = bench::sampleRows(rowCount);
    return sample;
}

std::string encode(const bench::Rows& list) {
    std::string out;
    out.reserve(hessianser::sizeOfValue(list));
    hessianser::writeValue(list, out);
    return out;
}

bench::Rows decode(const std::string& message) {
    Cursor in(message);
    return readValue<bench::Rows>(in);
}

/// Verifies the result first: a reader that reads nothing would be no reference.
template <class Read>
void measureReading(benchmark::State& state, const std::string& message, Read read) {
    if (!bench::same(read(message), rows()))
        throw std::runtime_error("What was read isn't what was written");
    for (auto _ : state) {
        bench::Rows list = read(message);
        benchmark::DoNotOptimize(list.data());
    }
}

void decodeInOrder(benchmark::State& state) {
    measureReading(state, encode(rows()), decode);
}
void decodeInReverse(benchmark::State& state) {
    measureReading(state, bench::writeInReverse(rows()), decode);
}
void decodeMsgpack(benchmark::State& state) {
    measureReading(state, bench::writeMsgpack(rows()), bench::readMsgpack);
}
void decodeProtobuf(benchmark::State& state) {
    std::string message;
    bench::ProtobufRows(rows()).write(message);
    measureReading(state, message, bench::readProtobuf);
}

void encodeReserved(benchmark::State& state) {
    std::string out;
    out.reserve(hessianser::sizeOfValue(rows()));
    for (auto _ : state) {
        out.clear();
        hessianser::writeValue(rows(), out);
        benchmark::DoNotOptimize(out.data());
    }
}
void encodeProtobuf(benchmark::State& state) {
    const bench::ProtobufRows messages(rows());
    std::string out;
    messages.write(out);
    for (auto _ : state) {
        out.clear();
        messages.write(out);
        benchmark::DoNotOptimize(out.data());
    }
}
void sizePass(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(hessianser::sizeOfValue(rows()));
}

void copyBytes(benchmark::State& state) {
    const std::string message = encode(rows());
    std::string copy(message.size(), '\0');
    for (auto _ : state) {
        std::memcpy(copy.data(), message.data(), message.size());
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(copyBytes)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeInOrder)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeInReverse)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeMsgpack)->Unit(benchmark::kMillisecond);
BENCHMARK(decodeProtobuf)->Unit(benchmark::kMillisecond);
BENCHMARK(encodeReserved)->Unit(benchmark::kMillisecond);
BENCHMARK(encodeProtobuf)->Unit(benchmark::kMillisecond);
BENCHMARK(sizePass)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
