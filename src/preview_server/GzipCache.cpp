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
    constexpr int GzipWindow = MAX_WBITS + 16; // zlib's way of asking for a gzip header
    constexpr int MemoryLevel = 8; // zlib's default

    class GzipStream {
    public:
        GzipStream()
        {
            iGood = deflateInit2(&iStream, Z_BEST_SPEED + 4, Z_DEFLATED, GzipWindow, MemoryLevel,
                        Z_DEFAULT_STRATEGY)
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

    SharedText compressedFile(const ServedFile& file)
    {
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
        }
        return stream.isGood() ? std::make_shared<const std::string>(std::move(output)) : nullptr;
    }

} // namespace

SharedText GzipCache::compressed(const ServedFile& file)
{
    if (file.size < SmallestFile || file.size > LargestFile)
        return nullptr;
    if (SharedText kept = find(file.version))
        return kept;
    SharedText bytes = compressedFile(file);
    if (bytes)
        keep(file.version, bytes);
    return bytes;
}

SharedText GzipCache::find(const std::string& version)
{
    const std::lock_guard lock(iMutex);
    const auto found = std::find_if(iEntries.begin(), iEntries.end(),
        [&](const Entry& entry) { return entry.version == version; });
    if (found == iEntries.end())
        return nullptr;
    iEntries.splice(iEntries.begin(), iEntries, found);
    return found->bytes;
}

void GzipCache::keep(const std::string& version, const SharedText& bytes)
{
    const std::lock_guard lock(iMutex);
    iEntries.push_front({ version, bytes });
    iBytes += bytes->size();
    while (iBytes > MostBytesKept) {
        iBytes -= iEntries.back().bytes->size();
        iEntries.pop_back();
    }
}

} // namespace leafcast::preview
