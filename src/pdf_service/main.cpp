// SPDX-License-Identifier: AGPL-3.0-or-later
#include "pdf_service/RequestHandler.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace leafcast::service;

namespace {

// The value of an option that takes a number above zero.
bool readNumber(const char* text, int& number)
{
    char* end = nullptr;
    const long value = text != nullptr ? std::strtol(text, &end, 10) : 0;
    if (value < 1 || value > 1'000'000 || *end != '\0')
        return false;
    number = static_cast<int>(value);
    return true;
}

bool readArguments(char** argument, Limits& limits)
{
    for (++argument; *argument != nullptr; argument += 2) {
        const bool memory = std::strcmp(*argument, "--memory-limit") == 0;
        const bool seconds = std::strcmp(*argument, "--page-seconds") == 0;
        if (!memory && !seconds)
            return false;
        if (!readNumber(argument[1], memory ? limits.memoryMebibytes : limits.pageSeconds))
            return false;
    }
    return true;
}

} // namespace

int main(int, char** argv)
{
    Limits limits;
    if (!readArguments(argv, limits)) {
        std::fputs("usage: leafcast-pdf [--memory-limit MIB] [--page-seconds S]\n", stderr);
        return 2;
    }
    limits.apply();
    RequestHandler handler(limits);
    MessageStream stream;
    while (const auto line = stream.read())
        MessageStream::write(handler.answer(*line));
    return 0;
}
