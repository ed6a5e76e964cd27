#pragma once

#include <cstdint>

/// The codes of `InputEvent::keyCode`, board row by board row: a key is its physical position, whatever is printed on it.
/// Letters and signs name the key that has them on a US board.
namespace tocca::platform::key {

enum : std::uint16_t { kEscape = 53, kF1 = 122, kF2 = 120, kF3 = 99, kF4 = 118, kF5 = 96, kF6 = 97 };

enum : std::uint16_t { kF7 = 98, kF8 = 100, kF9 = 101, kF10 = 109, kF11 = 103, kF12 = 111, kF13 = 105 };

enum : std::uint16_t { kF14 = 107, kF15 = 113, kF16 = 106, kF17 = 64, kF18 = 79, kF19 = 80, kF20 = 90 };

enum : std::uint16_t { kGrave = 50, k1 = 18, k2 = 19, k3 = 20, k4 = 21, k5 = 23, k6 = 22, k7 = 26, k8 = 28 };

enum : std::uint16_t { k9 = 25, k0 = 29, kMinus = 27, kEqual = 24, kYen = 93, kDelete = 51 };

enum : std::uint16_t { kTab = 48, kQ = 12, kW = 13, kE = 14, kR = 15, kT = 17, kY = 16, kU = 32, kI = 34 };

enum : std::uint16_t { kO = 31, kP = 35, kLeftBracket = 33, kRightBracket = 30, kBackslash = 42 };

enum : std::uint16_t { kCapsLock = 57, kA = 0, kS = 1, kD = 2, kF = 3, kG = 5, kH = 4, kJ = 38, kK = 40 };

enum : std::uint16_t { kL = 37, kSemicolon = 41, kQuote = 39, kReturn = 36 };

enum : std::uint16_t { kLeftShift = 56, kIsoSection = 10, kZ = 6, kX = 7, kC = 8, kV = 9, kB = 11, kN = 45 };

enum : std::uint16_t { kM = 46, kComma = 43, kPeriod = 47, kSlash = 44, kUnderscore = 94, kRightShift = 60 };

enum : std::uint16_t { kFunction = 63, kLeftControl = 59, kLeftOption = 58, kLeftCommand = 55, kEisu = 102 };

enum : std::uint16_t { kSpace = 49, kKana = 104, kRightCommand = 54, kRightOption = 61, kMenu = 110 };

enum : std::uint16_t { kRightControl = 62, kLeft = 123, kRight = 124, kDown = 125, kUp = 126 };

enum : std::uint16_t { kHelp = 114, kHome = 115, kPageUp = 116 };

enum : std::uint16_t { kForwardDelete = 117, kEnd = 119, kPageDown = 121 };

enum : std::uint16_t { kKeypadClear = 71, kKeypadEqual = 81, kKeypadDivide = 75, kKeypadMultiply = 67 };

enum : std::uint16_t { kKeypadMinus = 78, kKeypadPlus = 69, kKeypadEnter = 76 };

enum : std::uint16_t { kKeypadPoint = 65, kKeypadComma = 95 };

enum : std::uint16_t { kKeypad0 = 82, kKeypad1 = 83, kKeypad2 = 84, kKeypad3 = 85, kKeypad4 = 86 };

enum : std::uint16_t { kKeypad5 = 87, kKeypad6 = 88, kKeypad7 = 89, kKeypad8 = 91, kKeypad9 = 92 };

enum : std::uint16_t { kMute = 74, kVolumeDown = 73, kVolumeUp = 72 };

} // namespace tocca::platform::key
