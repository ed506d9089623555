// SPDX-License-Identifier: MIT
#include "preview_server/FilePolicy.h"

#include "preview_server/ByteRange.h"
#include "preview_server/Conditions.h"
#include "preview_server/HTTPDate.h"
#include "preview_server/MachineAddresses.h"
#include "preview_server/MediaType.h"

#include <boost/beast/http/rfc7230.hpp>

namespace leafcast::preview {

namespace http = boost::beast::http;
namespace ip = boost::asio::ip;

namespace {

    constexpr boost::beast::string_view Scheme = "http://";

    std::string_view view(boost::beast::string_view text)
    {
        return { text.data(), text.size() };
    }

    // The authority of a target in absolute form beats the Host field (RFC 9112, 3.2.2). Leaves the
    // path in the target, which is the root when there is none.
    std::string_view takeHost(const Request& request, std::string_view& target)
    {
        const std::string_view start = target.substr(0, Scheme.size());
        if (!boost::beast::iequals({ start.data(), start.size() }, Scheme))
            return view(request[http::field::host]);
        target.remove_prefix(Scheme.size());
        const std::string_view host = target.substr(0, target.find_first_of("/?#"));
        target.remove_prefix(host.size());
        if (!target.starts_with('/'))
            target = "/";
        return host;
    }

    bool hasBody(const Request& request)
    {
        const auto length = request[http::field::content_length];
        return (!length.empty() && length != "0")
            || request.count(http::field::transfer_encoding) > 0;
    }

    // A weight of zero says that it is not taken (RFC 9110, 12.4.2).
    bool takesGzip(const Request& request)
    {
        for (const auto& [coding, parameters] :
            http::ext_list(request[http::field::accept_encoding])) {
            if (!boost::beast::iequals(coding, "gzip"))
                continue;
            for (const auto& [name, value] : parameters) {
                if (boost::beast::iequals(name, "q"))
                    return value.find_first_not_of("0.") != boost::beast::string_view::npos;
            }
            return true;
        }
        return false;
    }

    // What a browser keeps it asks about again each time: a preview changes.
    void describe(Reply& reply, const Validators& validators, std::string_view type)
    {
        reply.setField(http::field::etag, validators.entityTag);
        reply.setField(http::field::last_modified, httpDate(validators.modified));
        reply.setField(http::field::cache_control, "no-cache");
        reply.setField(http::field::content_type, type);
        if (isCompressible(type))
            reply.setField(http::field::vary, "Accept-Encoding");
    }

    Reply notModified(const Validators& validators, std::string_view type)
    {
        Reply reply(http::status::not_modified);
        describe(reply, validators, type);
        reply.head.erase(http::field::content_type);
        reply.head.erase(http::field::content_length);
        return reply;
    }

    Reply compressedWhole(SharedText gzip, const Validators& validators, std::string_view type)
    {
        Reply reply(http::status::ok);
        describe(reply, validators, type);
        reply.setField(http::field::content_encoding, "gzip");
        reply.setText(std::move(gzip));
        return reply;
    }

    Reply whole(ServedFile& file, const Validators& validators, std::string_view type)
    {
        Reply reply(http::status::ok);
        describe(reply, validators, type);
        reply.setField(http::field::accept_ranges, "bytes");
        reply.setFile(std::move(file.descriptor), 0, file.size);
        return reply;
    }

    Reply part(ServedFile& file, const ByteRange& range, const Validators& validators,
        std::string_view type)
    {
        if (range.kind == ByteRange::Kind::Unsatisfiable) {
            Reply reply = refusal(http::status::range_not_satisfiable);
            reply.setField(http::field::content_range, "bytes */" + std::to_string(file.size));
            return reply;
        }
        Reply reply(http::status::partial_content);
        describe(reply, validators, type);
        reply.setField(http::field::content_range,
            "bytes " + std::to_string(range.first) + '-'
                + std::to_string(range.first + range.count - 1) + '/' + std::to_string(file.size));
        reply.setFile(std::move(file.descriptor), range.first, range.count);
        return reply;
    }

} // namespace

Reply FilePolicy::answer(const Request& request, const ip::address& reachedAt)
{
    Reply reply = answerAnyMethod(request, reachedAt);
    if (request.method() == http::verb::head)
        reply.dropBody();
    return reply;
}

Reply FilePolicy::answerAnyMethod(const Request& request, const ip::address& reachedAt)
{
    if (request.method() != http::verb::get && request.method() != http::verb::head) {
        Reply reply = refusal(http::status::method_not_allowed);
        reply.setField(http::field::allow, "GET, HEAD");
        reply.closesConnection = true;
        return reply;
    }
    if (hasBody(request)) {
        Reply reply = refusal(http::status::bad_request);
        reply.closesConnection = true;
        return reply;
    }
    std::string_view target = view(request.target());
    const std::string_view host = takeHost(request, target);
    if (host.empty() || request.count(http::field::host) > 1)
        return refusal(http::status::bad_request);
    if (!isOwnHost(host, reachedAt))
        return refusal(http::status::misdirected_request);
    return answerPath(request, target);
}

Reply FilePolicy::answerPath(const Request& request, std::string_view target)
{
    PathProblem problem{};
    const auto path = parseRequestPath(target, problem);
    if (!path)
        return refusal(
            problem == PathProblem::Hidden ? http::status::not_found : http::status::bad_request);
    Lookup found = iFolder.find(*path);
    switch (found.result) {
    case Lookup::Result::File:
        return answerFile(request, found.file);
    case Lookup::Result::TooManyFiles:
        return refusal(http::status::service_unavailable);
    case Lookup::Result::Folder:
        if (!path->endsWithSlash) {
            Reply reply(http::status::moved_permanently);
            reply.setField(http::field::location, path->folderLink());
            reply.setField(http::field::cache_control, "no-cache");
            return reply;
        }
        break;
    case Lookup::Result::Nothing:
        break;
    }
    return refusal(http::status::not_found);
}

Reply FilePolicy::answerFile(const Request& request, ServedFile& file)
{
    const std::string_view type = mediaType(file.name);
    const bool isRanged
        = request.method() == http::verb::get && request.count(http::field::range) > 0;
    const SharedText gzip = !isRanged && isCompressible(type) && takesGzip(request)
        ? iGzipCache.compressed(file)
        : nullptr;
    const std::string entityTag = '"' + file.version + (gzip ? "-gzip\"" : "\"");
    const Validators validators{ entityTag, file.modified.tv_sec };
    if (isNotModified(request, validators))
        return notModified(validators, type);
    if (gzip)
        return compressedWhole(gzip, validators, type);
    if (isRanged && allowsRange(request, validators)) {
        const ByteRange range = parseByteRange(view(request[http::field::range]), file.size);
        if (range.kind != ByteRange::Kind::Whole)
            return part(file, range, validators, type);
    }
    return whole(file, validators, type);
}

} // namespace leafcast::preview
