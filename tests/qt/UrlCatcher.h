// Stands in for the desktop's viewer in tests: receives the URLs that
// QDesktopServices is asked to open (see QDesktopServices::setUrlHandler).
#pragma once

#include <QObject>
#include <QStringList>
#include <QUrl>

namespace kalqttest {

class UrlCatcher : public QObject {
    Q_OBJECT
public:
    QStringList urls;

public slots:
    void Open(const QUrl& url) { urls << url.toString(); }
};

} // namespace kalqttest
