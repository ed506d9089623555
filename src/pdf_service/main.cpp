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

int* limitNamed(const char* option, Limits& limits)
{
    if (std::strcmp(option, "--memory-limit") == 0)
        return &limits.memoryMebibytes;
    if (std::strcmp(option, "--page-seconds") == 0)
        return &limits.pageSeconds;
    return std::strcmp(option, "--nice") == 0 ? &limits.niceness : nullptr;
}

bool readArguments(char** argument, Limits& limits)
{
    for (++argument; *argument != nullptr; argument += 2) {
        int* const number = limitNamed(*argument, limits);
        if (number == nullptr || !readNumber(argument[1], *number))
            return false;
    }
    return true;
}

} // namespace

int main(int, char** argv)
{
    Limits limits;
    if (!readArguments(argv, limits)) {
        std::fputs(
            "usage: leafcast-pdf [--memory-limit MIB] [--page-seconds S] [--nice N]\n", stderr);
        return 2;
    }
    limits.apply();
    RequestHandler handler(limits);
    MessageStream stream;
    while (const auto line = stream.read())
        MessageStream::write(handler.answer(*line));
    return 0;
}
