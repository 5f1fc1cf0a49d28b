#pragma once

#include <QString>

struct ReportContent;
class QIODevice;

/// A report on pages of A4, painted by the toolkit. Needs an application object with fonts. False when \a device did
/// not take it.
bool pdfReport(const ReportContent &content, QIODevice *device);
