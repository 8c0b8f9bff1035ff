// The scales of the factory tables, for the tests that go through all of them.

#include "factory_rows.h"

#include "library/default_tables.h"

#include <QtTest>

#include <algorithm>

namespace {

/// What "Octaves Only" and the two promotional rows say is given and describes nothing.
constexpr const char* undescribed[] = {"ZOL 2 Scale Name", "ZOL 1 Scale Name", "Octaves Only"};

bool isDescribed(const char* title)
{
    return std::none_of(std::begin(undescribed), std::end(undescribed),
                        [&](const char* other) { return QLatin1String(other) == QLatin1String(title); });
}

} // namespace

const scale_data& tableRow(int block, int row)
{
    return resetScaleData.at(static_cast<std::size_t>(block)).at(static_cast<std::size_t>(row - 1));
}

void addDescriptions()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    for (const WantedRow& wanted : wantedRows)
        if (isDescribed(wanted.title))
            QTest::newRow(wanted.title) << wanted.title << tableRow(wanted.block, wanted.row).libBody;
}
