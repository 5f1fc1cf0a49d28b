#pragma once

#include <QString>

class QDomDocument;

/// The only way in for XML files: small, shallow, without a document type, and well-formed, or not at all.
class XmlGuard
{
public:
    static constexpr qint64 kMaxSize = 256 * 1024; // bytes
    static constexpr int kMaxDepth = 16; // nested elements

    enum Result { Ok, Missing, Refused };

    /// Reads a board's path into `document`. What is refused is told in the debug log (message, line, column).
    static Result load(const QString &path, QDomDocument *document);
};
