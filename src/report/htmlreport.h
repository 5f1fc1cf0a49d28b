#pragma once

#include <QByteArray>

struct ReportContent;

/// A report as one file of HTML: pictures are drawings in it, nothing is loaded and nothing runs.
QByteArray htmlReport(const ReportContent &content);
