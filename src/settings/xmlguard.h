#pragma once

#include <QString>

class QDomDocument;

/// The only way in for XML files: UTF-8, small, shallow, with few elements and attributes, without a document type, and
/// well-formed, or not at all.
class XmlGuard
{
public:
    static constexpr qint64 kMaxSize = 256 * 1024; // bytes
    static constexpr int kMaxDepth = 16; // nested elements
    static constexpr int kMaxElements = 4096;
    static constexpr int kMaxAttributes = 64; // of one element; readers compare each with all others
    static constexpr int kMaxFiles = 200; // that one folder may bring in

    enum Result { Ok, Missing, Refused, Failed };

    /// Reads a board's path into `document`. What is refused is said in the debug log (message, line, column). Failed:
    /// the file is there but could not be read, so it must not be written over.
    static Result load(const QString &path, QDomDocument *document);
};
