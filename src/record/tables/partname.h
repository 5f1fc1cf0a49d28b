#pragma once

#include <QString>

/// "Common_2" is part 2 of "Common"; "Common" is its part 1.
struct PartName
{
    QString base;
    int number = 1;

    static PartName of(const QString &name)
    {
        const int mark = name.lastIndexOf(QLatin1Char('_'));
        const QString digits = name.mid(mark + 1);
        bool isNumber = false;
        const int number = digits.toInt(&isNumber);
        if (mark <= 0 || !isNumber || number < 2 || digits != QString::number(number))
            return { name, 1 };
        return { name.left(mark), number };
    }
};
