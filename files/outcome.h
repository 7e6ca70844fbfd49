// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <system_error>

namespace files {

/// Why a file, a photograph, or a file made of one could not be had.
enum class Problem
{
    None,
    CannotRead,    ///< detail: the system's reason
    NotAFile,      ///< a folder, pipe, socket or device; detail: empty
    TooLarge,      ///< detail: bytes there and bytes allowed, "9000/4096"
    TooShort,      ///< detail: bytes there and bytes needed, "54/307792"
    OtherImager,   ///< the layout was given; detail: the machine ID found
    NeitherLayout, ///< the layout was to be found out; detail: what stands where, "0: 7, 1: -"
    AlreadyThere,  ///< the file to write exists; detail: empty
    CannotWrite    ///< detail: the system's reason
};

/// How one piece of work on one file ended. `detail` is no sentence and in no language of ours:
/// whoever tells a user puts the words round it.
struct Outcome
{
    Problem problem = Problem::None;
    QString detail;

    bool isGood() const { return problem == Problem::None; }
};

/// The system's reason, in its language.
inline QString textOf(const std::error_code& error)
{
    return QString::fromLocal8Bit(error.message().c_str());
}

} // namespace files
