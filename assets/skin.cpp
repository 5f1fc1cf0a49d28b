// Embeds the packed pictures as they are: as an array in a source they would take seconds to compile. The names are
// those of the toolkit's resource compiler, so that Q_INIT_RESOURCE(skin) and Q_CLEANUP_RESOURCE(skin) work.
#include <QResource>

// skin.rcc is found by the assembler's search path, which CMakeLists.txt sets.
asm(".section .rodata\n"
    ".balign 16\n"
    ".globl quvera_skin_pictures\n"
    ".hidden quvera_skin_pictures\n"
    "quvera_skin_pictures:\n"
    ".incbin \"skin.rcc\"\n"
    ".previous\n");

extern const unsigned char skinPictures[] asm("quvera_skin_pictures");

namespace {
bool s_registered = false;
} // namespace

int qInitResources_skin();
int qInitResources_skin()
{
    if (!s_registered)
        s_registered = QResource::registerResource(skinPictures);
    return 1;
}

int qCleanupResources_skin();
int qCleanupResources_skin()
{
    if (s_registered)
        s_registered = !QResource::unregisterResource(skinPictures);
    return 1;
}

namespace {

/// Registers the pictures before main and takes them out after it.
struct Initialiser
{
    Initialiser() { qInitResources_skin(); }
    ~Initialiser() { qCleanupResources_skin(); }
} s_initialiser;

} // namespace
