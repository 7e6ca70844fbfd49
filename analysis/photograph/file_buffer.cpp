// SPDX-License-Identifier: MIT
#include "analysis/photograph/file_buffer.h"

#include "files/paths.h"
#include "files/reading.h"

#include <algorithm>
#include <new>

namespace analysis {

// Zeros from calloc cost nothing until they are touched, and most of the buffer never is.
FileBuffer::FileBuffer() : m_bytes(static_cast<uchar*>(std::calloc(size, 1)))
{
    if (!m_bytes)
        throw std::bad_alloc();
}

int FileBuffer::read(const QString& path)
{
    QFile file(files::localPath(path));
    if (!files::openForReading(file, QIODevice::ReadOnly | QIODevice::Unbuffered).isGood())
        return -1;
    const int count = int(file.read(reinterpret_cast<char*>(m_bytes.get()), size));
    m_used = std::max(m_used, count);
    return count;
}

void FileBuffer::clear()
{
    std::fill_n(m_bytes.get(), m_used, uchar(0));
    m_used = 0;
}

} // namespace analysis
