#pragma once

namespace brenix {

/// Key codes and modifier bits as handlers of key events know them: the desktop's classic virtual
/// keys.
namespace VirtualKey {
    enum : int {
        Back = 8,
        Tab = 9,
        Return = 13,
        Escape = 27,
        Space = 32,
        PageUp = 33,
        PageDown = 34,
        End = 35,
        Home = 36,
        Left = 37,
        Up = 38,
        Right = 39,
        Down = 40,
        Insert = 45,
        Delete = 46,
        Add = 107,
        Subtract = 109,
        F1 = 112,
    };
}
namespace ShiftBit {
    enum : int { Shift = 1, Control = 2, Alt = 4 };
}

} // namespace brenix
