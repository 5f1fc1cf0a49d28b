#include "settings/facefile.h"

#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>

#include <fontconfig/fontconfig.h>
#include <memory>

namespace {

template <auto destroy> struct Destroys
{
    template <typename Thing> void operator()(Thing *thing) const { destroy(thing); }
};

using Pattern = std::unique_ptr<FcPattern, Destroys<FcPatternDestroy>>;
using Objects = std::unique_ptr<FcObjectSet, Destroys<FcObjectSetDestroy>>;
using Faces = std::unique_ptr<FcFontSet, Destroys<FcFontSetDestroy>>;

/// The family of the first face of a file that the system lists among its fonts, empty for any other file.
QString listedFamily(const QString &path)
{
    const QByteArray file = QFile::encodeName(QFileInfo(path).canonicalFilePath());
    const Pattern wanted(FcPatternCreate());
    const Objects asked(FcObjectSetCreate());
    if (file.isEmpty() || !wanted || !asked || !FcObjectSetAdd(asked.get(), FC_FAMILY)
        || !FcPatternAddString(wanted.get(), FC_FILE, reinterpret_cast<const FcChar8 *>(file.constData()))
        || !FcPatternAddInteger(wanted.get(), FC_INDEX, 0))
        return QString();
    const Faces faces(FcFontList(nullptr, wanted.get(), asked.get()));
    FcChar8 *family = nullptr;
    if (!faces || faces->nfont < 1 || FcPatternGetString(faces->fonts[0], FC_FAMILY, 0, &family) != FcResultMatch)
        return QString();
    return QString::fromUtf8(reinterpret_cast<const char *>(family));
}

} // namespace

QString familyOfFaceFile(const QString &path)
{
    // Adding a file means reading all its characters, a third of the start for the thirty thousand Asian ones. The
    // system keeps that for the files that it lists.
    const QString listed = listedFamily(path);
    if (!listed.isEmpty() && QFontDatabase().families().contains(listed))
        return listed;
    const int id = QFontDatabase::addApplicationFont(path);
    return id < 0 ? QString() : QFontDatabase::applicationFontFamilies(id).value(0);
}
