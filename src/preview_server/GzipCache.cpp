// SPDX-License-Identifier: MIT
#include "preview_server/GzipCache.h"

#include <algorithm>
#include <array>
#include <zlib.h>

namespace leafcast::preview {

namespace {

    constexpr int64_t SmallestFile = 512;
    constexpr int64_t LargestFile = int64_t{ 32 } << 20;
    constexpr size_t MostBytesKept = size_t{ 6 } << 20;
    constexpr size_t MostEntries = 256;
    constexpr int GzipWindow = MAX_WBITS + 16; // zlib's way of asking for a gzip header
    constexpr int MemoryLevel = 8; // zlib's default
    constexpr int Effort = 5; // of 9; more costs time and saves hardly anything

    class GzipStream {
    public:
        GzipStream()
        {
            iGood = deflateInit2(
                        &iStream, Effort, Z_DEFLATED, GzipWindow, MemoryLevel, Z_DEFAULT_STRATEGY)
                == Z_OK;
        }
        ~GzipStream() { deflateEnd(&iStream); }
        GzipStream(const GzipStream&) = delete;
        GzipStream& operator=(const GzipStream&) = delete;

        bool isGood() const { return iGood; }

        void add(unsigned char* bytes, size_t count, int flush, std::string& output)
        {
            iStream.next_in = bytes;
            iStream.avail_in = static_cast<uInt>(count);
            do {
                iStream.next_out = iBuffer.data();
                iStream.avail_out = static_cast<uInt>(iBuffer.size());
                deflate(&iStream, flush);
                output.append(iBuffer.begin(), iBuffer.end() - iStream.avail_out);
            } while (iStream.avail_out == 0);
        }

    private:
        z_stream iStream{};
        bool iGood = false;
        std::array<unsigned char, size_t{ 32 } << 10> iBuffer{};
    };

    // Null when it can't be read or would not get smaller, or not small enough to be kept: without
    // being kept, each client could have its own copy in memory.
    SharedText compressedFile(const ServedFile& file)
    {
        const size_t most = std::min(static_cast<size_t>(file.size), MostBytesKept);
        GzipStream stream;
        std::string output;
        std::array<unsigned char, size_t{ 32 } << 10> input;
        int64_t position = 0;
        while (stream.isGood() && position < file.size) {
            const ssize_t count
                = pread(file.descriptor.get(), input.data(), input.size(), position);
            if (count <= 0)
                return nullptr;
            position += count;
            stream.add(input.data(), static_cast<size_t>(count),
                position < file.size ? Z_NO_FLUSH : Z_FINISH, output);
            if (output.size() > most)
                return nullptr;
        }
        return stream.isGood() ? std::make_shared<const std::string>(std::move(output)) : nullptr;
    }

} // namespace

SharedText GzipCache::compressed(const ServedFile& file)
{
    if (file.size < SmallestFile || file.size > LargestFile)
        return nullptr;
    if (const auto kept = find(file.version))
        return *kept;
    return keep(file.version, compressedFile(file));
}

std::optional<SharedText> GzipCache::find(const std::string& version)
{
    const std::lock_guard lock(iMutex);
    const auto found = std::find_if(iEntries.begin(), iEntries.end(),
        [&](const Entry& entry) { return entry.version == version; });
    if (found == iEntries.end())
        return std::nullopt;
    iEntries.splice(iEntries.begin(), iEntries, found);
    return found->bytes;
}

SharedText GzipCache::keep(const std::string& version, SharedText bytes)
{
    if (const auto kept = find(version)) // another thread was faster
        return *kept;
    const std::lock_guard lock(iMutex);
    iEntries.push_front({ version, bytes });
    iBytes += bytes ? bytes->size() : 0;
    while (iBytes > MostBytesKept || iEntries.size() > MostEntries) {
        const SharedText& last = iEntries.back().bytes;
        iBytes -= last ? last->size() : 0;
        iEntries.pop_back();
    }
    return bytes;
}

} // namespace leafcast::preview
