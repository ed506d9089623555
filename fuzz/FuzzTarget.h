// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <QByteArray>
#include <QTemporaryDir>

namespace leafcast::fuzz {

inline QByteArray bytesOf(const uint8_t* data, size_t size)
{
    return { reinterpret_cast<const char*>(data), static_cast<qsizetype>(size) };
}

/// What must hold whatever the input is.
inline void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::cerr << "does not hold: " << what << '\n';
    std::abort();
}

/// A folder of its own for each process, emptied by its destructor.
QString folder();

/// Writes the input to a file in the folder; answers its path.
QString fileWith(const QByteArray& content, const QString& name);

} // namespace leafcast::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
