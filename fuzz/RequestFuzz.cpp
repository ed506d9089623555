// SPDX-License-Identifier: MIT
#include "FuzzTarget.h"
#include "preview_server/FilePolicy.h"

#include <boost/asio/buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/parser.hpp>
#include <optional>
#include <QDir>
#include <QFile>
#include <unistd.h>

using namespace leafcast;
using namespace leafcast::preview;
using namespace Qt::StringLiterals;

namespace http = boost::beast::http;

namespace {

constexpr char secret = '\x01'; // is in no file that may be served

/// The served folder lies beside a secret, and a link in it leads there.
const char* servedFolder()
{
    static const QByteArray path = [] {
        const QDir parent(fuzz::folder());
        parent.mkpath(u"book/files"_s);
        fuzz::fileWith(QByteArray(100, secret), u"secret.txt"_s);
        fuzz::fileWith("<!DOCTYPE html><title>t</title>", u"book/index.html"_s);
        fuzz::fileWith(QByteArray(100, 'x'), u"book/files/1.jpg"_s);
        fuzz::fileWith(QByteArray(100, secret), u"book/.hidden"_s);
        QFile::link(parent.filePath(u"secret.txt"_s), parent.filePath(u"book/link.txt"_s));
        return QFile::encodeName(parent.filePath(u"book"_s));
    }();
    return path.constData();
}

std::optional<Request> requestOf(const uint8_t* data, size_t size)
{
    http::request_parser<http::empty_body> parser;
    boost::beast::error_code error;
    parser.put(boost::asio::buffer(data, size), error);
    if (error || !parser.is_header_done())
        return std::nullopt;
    return parser.release();
}

bool holdsSecret(const Reply& reply)
{
    char first = 0;
    return reply.count > 0 && pread(reply.file.get(), &first, 1, reply.first) == 1
        && first == secret;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const ServedFolder folder(servedFolder());
    static FilePolicy policy(folder);
    const std::optional<Request> request = requestOf(data, size);
    if (!request)
        return 0;
    const auto reachedAt = boost::asio::ip::make_address("127.0.0.1");
    const Reply reply = policy.answer(*request, reachedAt);
    fuzz::require(!holdsSecret(reply), "nothing hidden or outside the folder is served");
    const bool isRead
        = request->method() == http::verb::get || request->method() == http::verb::head;
    fuzz::require(isRead || reply.head.result_int() >= 400, "nothing but GET and HEAD is served");
    fuzz::require(reply.head["X-Content-Type-Options"] == "nosniff", "types are not guessed");
    return 0;
}
