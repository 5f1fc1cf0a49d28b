#pragma once

/// Loads the faces of the instrument, a Latin one and one that also has the Asian characters. The second becomes the
/// application's font; if it cannot be loaded the toolkit's default stays, whatever became of the first. Needs the
/// application. GUI thread.
void loadApplicationFont();
