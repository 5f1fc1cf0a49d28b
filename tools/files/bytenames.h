#pragma once

/// Has the toolkit keep names of files as the bytes that they are, whatever the language of the terminal says: what is
/// UTF-8 becomes text, any other byte one half of a surrogate pair (0xE4 is U+DCE4), which goes back to the same byte.
/// To be called before anything else.
void keepNamesOfFiles();
