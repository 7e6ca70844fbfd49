// SPDX-License-Identifier: MIT
#pragma once

/// Everything the program carries inside itself: icons under ":/photo/", alarm recordings under
/// ":/Sound/", translation catalogues directly under ":/".
namespace resources {

/// Makes the resources of this library reachable through ":/" and "qrc:/" paths. A linker drops
/// the resources of a static library that nobody calls, so every program that shows windows calls
/// this once its application object exists. Calling it again does nothing.
void load();

} // namespace resources
