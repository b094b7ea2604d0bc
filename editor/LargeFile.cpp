#include "editor/LargeFile.h"

namespace brenix {

namespace {
    int largeFile = 20000;
}

int LargeFile()
{
    return largeFile;
}

void SetLargeFile(int characters)
{
    largeFile = characters;
}

} // namespace brenix
