// A mouse press on the bridge, offered to every control of the bridge in
// order: the last branch of Form_MouseDown.
#pragma once

namespace lf {

// Button: 1 left, 2 right. The position is read from the host.
void CheckBridgeMouseDown(int Button);

}  // namespace lf
