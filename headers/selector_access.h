#pragma once

class KeyControllerBase;
class ScaleKeyController;
class TonicKeyController;

/// The selectors and the anchors as the presets see them.
namespace selector_access {

[[nodiscard]] TonicKeyController& tonic();
[[nodiscard]] ScaleKeyController& scale();
void setSwitch(KeyControllerBase& selector, bool on, bool toHeader);
/// Whole scene pixels that the main in anchor stands right of its home; 0 without anchors.
[[nodiscard]] int anchorX();
void moveAnchors(int dx);
/// The anchors back to their home; does not remap.
void resetAnchors();
void remap();

} // namespace selector_access
