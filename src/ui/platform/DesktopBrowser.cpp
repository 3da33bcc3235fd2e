#include "DesktopBrowser.h"

#include <QDesktopServices>
#include <QUrl>

namespace ostrel::ui {

bool DesktopBrowser::Open(const QString& url) {
    const QUrl link = QUrl::fromUserInput(url);
    if (!link.isValid()) return false;
    return QDesktopServices::openUrl(link);
}

} // namespace ostrel::ui
