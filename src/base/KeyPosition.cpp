#include "base/KeyPosition.h"

#include <algorithm>
#include <array>

namespace velvane::KeyPosition {

namespace {

struct Key {
    quint32 evdev;
    quint16 keyCode;
};

// By the kernel's number. Modifier keys are left out: a shortcut names them by bits.
constexpr std::array keys{
    Key{1, 53},    Key{2, 18},    Key{3, 19},    Key{4, 20},    Key{5, 21},   // Escape 1 2 3 4
    Key{6, 23},    Key{7, 22},    Key{8, 26},    Key{9, 28},    Key{10, 25},  // 5 6 7 8 9
    Key{11, 29},   Key{12, 27},   Key{13, 24},   Key{14, 51},   Key{15, 48},  // 0 - = Backspace Tab
    Key{16, 12},   Key{17, 13},   Key{18, 14},   Key{19, 15},   Key{20, 17},  // Q W E R T
    Key{21, 16},   Key{22, 32},   Key{23, 34},   Key{24, 31},   Key{25, 35},  // Y U I O P
    Key{26, 33},   Key{27, 30},   Key{28, 36},                                // [ ] Return
    Key{30, 0},    Key{31, 1},    Key{32, 2},    Key{33, 3},    Key{34, 5},   // A S D F G
    Key{35, 4},    Key{36, 38},   Key{37, 40},   Key{38, 37},   Key{39, 41},  // H J K L ;
    Key{40, 39},   Key{41, 50},   Key{43, 42},                                // ' ` backslash
    Key{44, 6},    Key{45, 7},    Key{46, 8},    Key{47, 9},    Key{48, 11},  // Z X C V B
    Key{49, 45},   Key{50, 46},   Key{51, 43},   Key{52, 47},   Key{53, 44},  // N M , . /
    Key{55, 67},   Key{57, 49},                                               // keypad * Space
    Key{59, 122},  Key{60, 120},  Key{61, 99},   Key{62, 118},  Key{63, 96},  // F1 to F5
    Key{64, 97},   Key{65, 98},   Key{66, 100},  Key{67, 101},  Key{68, 109}, // F6 to F10
    Key{69, 71},                                                              // keypad Clear
    Key{71, 89},   Key{72, 91},   Key{73, 92},   Key{74, 78},                 // keypad 7 8 9 -
    Key{75, 86},   Key{76, 87},   Key{77, 88},   Key{78, 69},                 // keypad 4 5 6 +
    Key{79, 83},   Key{80, 84},   Key{81, 85},   Key{82, 82},   Key{83, 65},  // keypad 1 2 3 0 .
    Key{86, 10},   Key{87, 103},  Key{88, 111}, // the key beside left Shift, F11 F12
    Key{96, 76},   Key{98, 75},                 // keypad Enter /
    Key{102, 115}, Key{103, 126}, Key{104, 116}, Key{105, 123}, // Home Up PageUp Left
    Key{106, 124}, Key{107, 119}, Key{108, 125}, Key{109, 121}, // Right End Down PageDown
    Key{110, 114}, Key{111, 117}, Key{117, 81},                 // Insert Delete keypad =
    Key{183, 105}, Key{184, 107}, Key{185, 113}, Key{186, 106}, // F13 to F16
    Key{187, 64},  Key{188, 79},  Key{189, 80},  Key{190, 90},  // F17 to F20
};

} // namespace

std::optional<quint16> keyCode(quint32 evdev)
{
    const auto *found =
        std::find_if(keys.begin(), keys.end(), [=](const Key &key) { return key.evdev == evdev; });
    return found == keys.end() ? std::nullopt : std::optional(found->keyCode);
}

std::optional<quint32> evdev(quint16 keyCode)
{
    const auto *found = std::find_if(keys.begin(), keys.end(),
                                     [=](const Key &key) { return key.keyCode == keyCode; });
    return found == keys.end() ? std::nullopt : std::optional(found->evdev);
}

} // namespace velvane::KeyPosition
