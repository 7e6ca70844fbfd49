// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace testing {

/// A drive letter that comes and goes while programs run, as a USB disk does. Only Wine has such
/// drives: everywhere else plug() fails.
class WineDrive
{
public:
    enum class Kind
    {
        Removable,
        Fixed,
        CdRom,
        Network
    };

    /// `letter` is 'A' to 'Z'. A drive left behind under this letter is taken away.
    explicit WineDrive(char letter);
    ~WineDrive();
    WineDrive(const WineDrive&) = delete;
    WineDrive& operator=(const WineDrive&) = delete;

    /// The drive's root, "F:/".
    QString root() const;
    /// Lets the drive show the folder. True when the system took it.
    bool plug(const QString& folder, Kind kind = Kind::Removable);
    void unplug();

private:
    char m_letter;
};

} // namespace testing
