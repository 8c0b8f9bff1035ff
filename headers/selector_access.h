#pragma once

#include <QtGlobal>

class KeyControllerBase;
class ScaleKeyController;
class TonicKeyController;

/// The selectors and the anchors as the presets see them.
namespace selector_access {

[[nodiscard]] TonicKeyController& tonicSelector();
[[nodiscard]] ScaleKeyController& scaleSelector();
void setSwitch(KeyControllerBase& selector, bool on, bool toHeader);
/// Whole scene pixels that the main in anchor stands right of its home; 0 without anchors.
[[nodiscard]] int anchorX();
/// Scene pixels; the anchors stay within what a whole number of pixels can say.
void moveAnchors(qreal dx);
/// x of the anchors in the scene, 0 at home.
[[nodiscard]] qreal anchorsPlace();
/// Puts the anchors there, as onStage() has it; does not remap.
void placeAnchors(qreal x);
/// The anchors back to their home; does not remap.
void resetAnchors();
/// A place that a file gives, in scene pixels: bounded, and 0 for what is no number.
[[nodiscard]] qreal onStage(qreal x);

} // namespace selector_access
