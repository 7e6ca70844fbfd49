// SPDX-License-Identifier: MIT
#include "analysis/windows/outcome_text.h"

#include <QCoreApplication>

namespace analysis {
namespace {

struct Outcomes
{
    Q_DECLARE_TR_FUNCTIONS(Outcomes)
};

} // namespace

QString outcomeText(const files::Outcome& outcome)
{
    using files::Problem;
    switch (outcome.problem) {
    case Problem::None:
        break;
    case Problem::CannotRead:
        return Outcomes::tr("无法读取（%1）").arg(outcome.detail);
    case Problem::NotAFile:
        return Outcomes::tr("不是普通文件");
    case Problem::TooLarge:
        return Outcomes::tr("文件过大（%1 字节）").arg(outcome.detail);
    case Problem::TooShort:
        return Outcomes::tr("文件不完整（%1 字节）").arg(outcome.detail);
    case Problem::OtherImager:
    case Problem::NeitherLayout:
        return Outcomes::tr("不是受支持设备的照片（机器ID %1）").arg(outcome.detail);
    case Problem::AlreadyThere:
        return Outcomes::tr("目标文件夹中已有同名文件");
    case Problem::CannotWrite:
        return Outcomes::tr("无法写入（%1）").arg(outcome.detail);
    }
    return {};
}

} // namespace analysis
