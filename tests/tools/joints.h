// SPDX-License-Identifier: MIT
#pragma once

/// The same tools as JSON and as a table.
namespace testing {

/// As the window saves it.
constexpr const char* joints = R"({
    "version": 1,
    "points": [[7, 9], [120, 160]],
    "lines": [[10, 300, 200, 20]],
    "rectangles": [[100, 99, 30, 60]],
    "circles": [[150, 200, 40]],
    "names": ["P0", "P3", "L0", "R1", "C0"],
    "colours": {"P3": "#0000ff", "C0": "#80ffffff"}
}
)";

constexpr const char* jointsTable = "name,type,x1,y1,x2,y2,radius,colour\n"
                                    "P0,point,7,9,,,,#ff0000\n"
                                    "P3,point,120,160,,,,#0000ff\n"
                                    "L0,line,10,300,200,20,,#ff0000\n"
                                    "R1,rectangle,100,99,30,60,,#ff0000\n"
                                    "C0,circle,150,200,,,40,#80ffffff\n";

} // namespace testing
