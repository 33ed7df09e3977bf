#pragma once

namespace TVX::CORE {

// Registers the compiled-in images (icons, cursors, splash, logo) under ":/icons/" and
// ":/tvxcore/resources/". Safe to call more than once.
void registerCoreResources();

} // namespace TVX::CORE
