// The one place that knows which routine answers which hook of `mainView`.
#pragma once

/// Connects every hook of `mainView` to its routine. Call it before the first window is made.
void connectHooks();
