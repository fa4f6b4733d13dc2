// SPDX-FileCopyrightText: 2026 The Tarn-Mobile User authors
// SPDX-License-Identifier: Apache-2.0
#include "transport/transport_mode.h"

#include <boost/make_shared.hpp>

#include "transport/http_call_dispatcher.h"
#include "transport/raw_stream_dispatcher.h"

namespace hessiancln {

int transportMode = 0;

boost::shared_ptr<ICallDispatcher> createCallDispatcher(std::uint32_t traceLevel,
                                                        const std::string& traceFile) {
    switch (transportMode) {
    case 1:
        return boost::make_shared<CRawStreamDispacher>(traceLevel, traceFile, true);
    case 2:
        return boost::make_shared<CRawStreamDispacher>(traceLevel, traceFile, false);
    default:
        return boost::make_shared<CHttpCallDispatcher>(traceLevel, traceFile);
    }
}

} // namespace hessiancln
