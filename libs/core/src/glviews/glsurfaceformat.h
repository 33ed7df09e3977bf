#pragma once

namespace TVX::CORE {

// Makes every OpenGL widget get a compatibility-profile context, so that the views can draw with
// the fixed-function pipeline. Call once, before the application object exists.
void installCompatibilityGLFormat();

} // namespace TVX::CORE
