// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtEndian>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace fuzz {

/// One input taken apart from the front. What an input is too short for is zero or empty, so every
/// input means something and cutting an end off one changes little.
class Input
{
public:
    Input(const std::uint8_t* bytes, std::size_t size) : m_next(bytes), m_left(size) {}

    /// A little-endian number.
    template<typename T>
    T number()
    {
        std::uint8_t buffer[sizeof(T)] = {};
        const std::size_t count = std::min(m_left, sizeof(T));
        std::copy_n(m_next, count, buffer);
        skip(count);
        return qFromLittleEndian<T>(buffer);
    }
    std::uint8_t byte() { return number<std::uint8_t>(); }

    /// At most `count` bytes.
    QByteArray bytes(int count)
    {
        const std::size_t taken = std::min(m_left, std::size_t(count));
        QByteArray out(reinterpret_cast<const char*>(m_next), int(taken));
        skip(taken);
        return out;
    }
    QByteArray rest() { return bytes(int(m_left)); }
    bool isEmpty() const { return m_left == 0; }

private:
    void skip(std::size_t count)
    {
        m_next += count;
        m_left -= count;
    }

    const std::uint8_t* m_next;
    std::size_t m_left;
};

} // namespace fuzz
