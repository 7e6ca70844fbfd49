// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <cstdlib>
#include <memory>

namespace analysis {

/// Where a photograph's bytes are kept: a fixed 2,000,000 bytes, zero at first. Reading a file
/// replaces as many bytes as it gives; what lies behind them stays from the file before, and the
/// blocks of a short photograph are read from there. One buffer may serve any number of files.
class FileBuffer
{
public:
    static constexpr int size = 2'000'000;

    FileBuffer();

    /// Reads the first 2,000,000 bytes of a file, or all if it is shorter. Returns how many there
    /// were; −1 when it is no regular file or cannot be read, and then the bytes stay as they were.
    int read(const QString& path);

    /// All bytes back to zero, so that the next photograph owes nothing to the ones before. Costs
    /// no more than what was read since the last time.
    void clear();

    /// Valid for `size` bytes as long as the buffer lives.
    const uchar* bytes() const { return m_bytes.get(); }

private:
    struct Free
    {
        void operator()(uchar* bytes) const { std::free(bytes); }
    };
    std::unique_ptr<uchar[], Free> m_bytes;
    int m_used = 0; ///< no byte from here on was ever written
};

} // namespace analysis
