// SPDX-License-Identifier: MIT
#pragma once

#include "base/XMLElement.h"

namespace leafcast {

/// Reads XML text into a tree, white space and CDATA kept. Never reaches for the network or another
/// file, and refuses a document that declares entities of its own.
class XMLParser {
public:
    enum class Mode {
        Strict,
        Tidying, // mends mismatched tags and bare ampersands
    };

    struct Error {
        QString message;
        int line = 0; // from 1; 0 when unknown
    };

    /// The root element; none with error() set when the text can't be read as XML.
    [[nodiscard]] std::optional<XMLElement> parse(const QByteArray& text, Mode mode);

    const Error& error() const { return iError; }

private:
    Error iError;
};

} // namespace leafcast
