#include "qt/page_server.h"

#include <QBuffer>
#include <QMimeDatabase>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <exception>

#include "qt/qt_text.h"

namespace morpho {

namespace {

const char* const kScheme = "page";

QByteArray ContentType(const QString& path, const QByteArray& bytes) {
    return QMimeDatabase().mimeTypeForFileNameAndData(path, bytes).name().toLatin1();
}

bool IsPlainName(const QString& segment) {
    const bool dots = segment == "." || segment == "..";
    return !dots && !segment.contains(u':') && !segment.contains(QChar(u'\0'));
}

}  // namespace

class PageServer::SchemeHandler : public QWebEngineUrlSchemeHandler {
  public:
    explicit SchemeHandler(const PageServer& server) : server_(server) {}

    void requestStarted(QWebEngineUrlRequestJob* job) override {
        const auto source = server_.sources_.find(FromQt(job->requestUrl().host()));
        const auto names = NamesIn(job->requestUrl());
        if (source == server_.sources_.end() || !names || job->requestMethod() != "GET") {
            job->fail(QWebEngineUrlRequestJob::RequestDenied);
            return;
        }
        try {
            const std::string bytes = source->second(*names);
            auto* const body = new QBuffer(job);
            body->setData(QByteArray::fromStdString(bytes));
            const QString name = names->empty() ? QString("index.htm") : ToQt(names->back());
            job->reply(ContentType(name, body->data()), body);
        } catch (const std::exception&) {
            job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        }
    }

  private:
    const PageServer& server_;
};

// Refuses pages every address but those that are served here.
class PageServer::Fence : public QWebEngineUrlRequestInterceptor {
  public:
    void interceptRequest(QWebEngineUrlRequestInfo& request) override {
        const QUrl url = request.requestUrl();
        request.block(!IsOfScheme(url) && url.scheme() != "data" && url.scheme() != "about");
    }
};

PageServer::PageServer(const FileSystem& files) : files_(files) {}

PageServer::~PageServer() = default;

void PageServer::RegisterScheme() {
    QWebEngineUrlScheme scheme(kScheme);
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    scheme.setFlags(QWebEngineUrlScheme::SecureScheme);
    QWebEngineUrlScheme::registerScheme(scheme);
}

QWebEngineProfile* PageServer::Profile() {
    if (!profile_) {
        handler_ = std::make_unique<SchemeHandler>(*this);
        fence_ = std::make_unique<Fence>();
        profile_ = std::make_unique<QWebEngineProfile>();  // off the record: it has no name
        profile_->setHttpCacheType(QWebEngineProfile::NoCache);
        profile_->installUrlSchemeHandler(kScheme, handler_.get());
        profile_->setUrlRequestInterceptor(fence_.get());
    }
    return profile_.get();
}

std::string PageServer::NewSite() {
    return "site" + std::to_string(++sites_);
}

QUrl PageServer::Open(const std::string& site, std::string_view pagePath) {
    const std::size_t slash = pagePath.find_last_of('\\');
    if (slash == std::string_view::npos) return {};
    const std::string folder(pagePath.substr(0, slash));
    const auto source = [this, folder](const Names& names) {
        std::string path = folder;
        for (const std::string& name : names)
            path += '\\' + name;
        return files_.ReadFile(path);
    };
    return Open(site, source, {std::string(pagePath.substr(slash + 1))});
}

QUrl PageServer::Open(const std::string& site, Source source, const Names& page) {
    sources_[site] = std::move(source);
    QString path;
    for (const std::string& name : page)
        path += '/' + ToQt(name);
    QUrl url;
    url.setScheme(kScheme);
    url.setHost(ToQt(site));
    url.setPath(path);
    return url;
}

bool PageServer::IsOfScheme(const QUrl& url) {
    return url.scheme() == kScheme;
}

std::optional<PageServer::Names> PageServer::NamesIn(const QUrl& url) {
    Names names;
    const QString inside = url.path(QUrl::FullyDecoded).replace('\\', '/');
    for (const QString& segment : inside.split('/', Qt::SkipEmptyParts)) {
        if (!IsPlainName(segment)) return {};
        names.push_back(FromQt(segment));
    }
    return names;
}

}  // namespace morpho
