#pragma once

#include <QList>
#include <QWebEngineScript>

namespace pinmora {

/// The longest argument, and the longest name of a function, that a page may call with.
inline constexpr int longestArgument = 200;
inline constexpr int longestName = 40;

/// The scripts that stand in each document from its beginning: the published object in the page's
/// own world, and its way to the program in the application's world. In documents of another
/// origin they do nothing. Their names tell them apart from those of other origins.
QList<QWebEngineScript> pageScripts(const QString &origin, const QString &publishedName);

} // namespace pinmora
