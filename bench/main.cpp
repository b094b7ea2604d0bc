#include "bench/Program.h"
#include "bench/Table.h"

#include <QApplication>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace bench {
void RegisterColouring();
void RegisterSnapshots();
void RegisterKeys();
void RegisterLists();
void RegisterOpening();
void RegisterTransforms();
void RegisterReplacing();
void RegisterChecks();
} // namespace bench

namespace {

// What is measured is the program, and not how fast the system hands out empty pages: memory that
// was freed is used again, however large.
void KeepFreedMemory()
{
#ifdef __GLIBC__
    mallopt(M_MMAP_MAX, 0);
    mallopt(M_TRIM_THRESHOLD, -1);
#endif
}

} // namespace

int main(int argc, char **argv)
{
    KeepFreedMemory();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const bench::PrivateHome home;
    QApplication::setCursorFlashTime(0); // nothing but the keys paints

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    bench::RegisterColouring();
    bench::RegisterSnapshots();
    bench::RegisterKeys();
    bench::RegisterLists();
    bench::RegisterOpening();
    bench::RegisterTransforms();
    bench::RegisterReplacing();
    bench::RegisterChecks();
    bench::Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return 0;
}
