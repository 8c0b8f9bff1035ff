// The fuzz target: any bytes as a database file.

#include "ImportRig.h"
#include "app/Application.h"
#include "app/MainWnd.h"
#include "json_mutator.h"
#include "repeated_keys.h"

#include <QLoggingCategory>

#include <sanitizer/lsan_interface.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr int thoroughOneIn = 16; // files; the others get the quick checks, which cost a tenth

ImportRig* rig = nullptr; // lives as long as the process, and can be reached, so that it is no leak

// Which files are looked at closely follows from the file, so that a find replays from its file alone.
ImportRig::Depth depthFor(const QByteArray& file)
{
    return qHash(file, 0) % thoroughOneIn == 0 ? ImportRig::Depth::thorough : ImportRig::Depth::quick;
}

QByteArray borrowed(const std::uint8_t* data, std::size_t size)
{
    return QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size));
}

/// Nothing may leak, but for the one leak that is the parser's own.
QStringList checked(const QByteArray& file)
{
    __lsan_disable();
    const bool parserLeaks = repeatsKey(file);
    if (!parserLeaks)
        __lsan_enable();
    const QStringList wrong = rig->run(file, depthFor(file));
    if (parserLeaks)
        __lsan_enable();
    return wrong;
}

/// Copies the text if there is room for it; else 0.
std::size_t put(const QByteArray& text, std::uint8_t* out, std::size_t room)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (size > room)
        return 0;
    std::memcpy(out, text.constData(), size);
    return size;
}

} // namespace

extern "C" {

std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t room);

int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    static int ownCount = 1; // the fuzzer's options are not the toolkit's
    static_cast<void>(argc);
    app = new Application(ownCount, *argv);
    rig = new ImportRig;
    return 0;
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QStringList wrong = checked(file);
    for (const QString& line : wrong)
        std::fprintf(stderr, "BROKEN: %s\n", qUtf8Printable(line));
    if (!wrong.isEmpty())
        std::abort();
    return 0;
}

// One in four by bytes, which breaks the JSON; the others stay JSON and reach what lies behind the parser.
std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t room, unsigned int seed)
{
    const __lsan::ScopedDisabler parserLeaks;
    json_mutator::Random random(seed);
    if (random() % 4 == 0)
        return LLVMFuzzerMutate(data, size, room);
    const std::size_t written = put(json_mutator::mutate(borrowed(data, size), random), data, room);
    return written != 0 ? written : LLVMFuzzerMutate(data, size, room);
}

std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* data1, std::size_t size1, const std::uint8_t* data2,
                                      std::size_t size2, std::uint8_t* out, std::size_t room,
                                      unsigned int seed)
{
    const __lsan::ScopedDisabler parserLeaks;
    json_mutator::Random random(seed);
    return put(json_mutator::cross(borrowed(data1, size1), borrowed(data2, size2), random), out, room);
}
}
