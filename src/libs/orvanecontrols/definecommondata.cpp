#include "definecommondata.h"

QString DefineCommonData::getNormalFont()
{
    return QStringLiteral("9pt \"微软雅黑\" ");
}

QString DefineCommonData::getBigFont()
{
    return QStringLiteral("10.5pt \"微软雅黑\" ");
}

QString DefineCommonData::getBiggerFont()
{
    return QStringLiteral("12pt  \"微软雅黑\" ");
}
