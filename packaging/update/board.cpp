#include "board.h"

#include <cstdlib>

namespace update {

std::string rootFolder()
{
    const char *given = std::getenv("QUVERA_ROOT");
    std::string root = given ? given : "";
    while (!root.empty() && root.back() == '/')
        root.pop_back();
    return root;
}

} // namespace update
