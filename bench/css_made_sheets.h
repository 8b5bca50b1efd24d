#pragma once

#include <QByteArray>
#include <QList>

// Style sheets for a comparison of two readers: some about one odd thing each, and this many that
// are put together by chance, always the same ones.
QList<QByteArray> MadeSheets(int byChance);
