// Read before all other precompiled headers: what they would bring into every source and no source here needs.

// The special functions of <cmath>, elliptic integrals and the like.
#include <cstddef>
#undef _GLIBCXX_USE_STD_SPEC_FUNCS

// <future>, which the header of QThread reads for the sake of QThread::create. A thread that runs a lambda is a
// std::thread.
#if __has_include(<QtCore/qglobal.h>)
#include <QtCore/qglobal.h>
#undef QT_FEATURE_cxx11_future
#define QT_FEATURE_cxx11_future -1
#endif
