#include "files/exports.h"

const std::vector<ExportFormat> &exportFormats()
{
    static const std::vector<ExportFormat> formats {};
    return formats;
}
