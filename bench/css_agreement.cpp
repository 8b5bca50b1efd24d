// Whether the style-sheet reader reads what a browser reads. The browser reads each sheet, and it
// reads what the reader made of that sheet, written down again as plain rules: both must give it
// the same style rules. So what a browser does not know, such as a property of themes, is left out
// on both sides. Prints how many rules there were, and the sheets that differ.
// usage: bench_css_agreement MADE_SHEETS FILE...

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebEnginePage>
#include <cstdio>

#include "css_made_sheets.h"
#include "formats/css_reader.h"
#include "program/qt_program.h"

namespace {

constexpr int kSheetsACall = 500;  // scripts of some megabytes are slow

// Takes pairs of texts, and returns for each the rules that the browser has for either.
const char kScript[] = R"js((pairs => {
    const value = (style, name) => style.getPropertyValue(name).trim();
    // A custom property may be empty; no value is empty for the reader, to which it says nothing.
    const shown = rule => rule.selectorText + '{' + [...rule.style]
        .filter(name => value(rule.style, name) !== '')
        .map(name => name + ':' + value(rule.style, name) + rule.style.getPropertyPriority(name))
        .join(';') + '}';
    const rules = text => {
        const sheet = document.createElement('style');
        sheet.textContent = text;
        document.head.append(sheet);
        const texts = [...sheet.sheet.cssRules].filter(rule => rule.type === CSSRule.STYLE_RULE)
                                               .map(shown);
        sheet.remove();
        return texts;
    };
    const written = rules => rules.map(rule => rule.selector + '{' + rule.declarations.map(
        ([name, value]) => CSS.escape(name) + ':' + value).join(';')).join('}\n');
    return pairs.map(pair => [rules(pair.sheet), rules(written(pair.rules))]);
}))js";

QJsonObject Pair(const QByteArray& sheet) {
    QJsonArray rules;
    for (const morpho::CssRule& rule : morpho::ReadCss(sheet.toStdString())) {
        QJsonArray declarations;
        for (const morpho::CssDeclaration& declaration : rule.declarations)
            declarations.append(QJsonArray{QString::fromStdString(declaration.name),
                                           QString::fromStdString(declaration.value)});
        rules.append(QJsonObject{{"selector", QString::fromStdString(rule.selector)},
                                 {"declarations", declarations}});
    }
    return {{"sheet", QString::fromUtf8(sheet)}, {"rules", rules}};
}

class Comparison {
  public:
    explicit Comparison(QList<QByteArray> sheets) : sheets_(std::move(sheets)) {
        QObject::connect(&page_, &QWebEnginePage::loadFinished, [this] { AskNext(); });
        page_.setHtml("<!doctype html>");
    }

    int Differences() const { return differences_; }

  private:
    void AskNext() {
        QJsonArray pairs;
        for (const QByteArray& sheet : sheets_.mid(asked_, kSheetsACall))
            pairs.append(Pair(sheet));
        if (pairs.isEmpty()) {
            std::printf("%lld sheets with %d rules, %d differ\n",
                        static_cast<long long>(sheets_.size()), rules_, differences_);
            return QCoreApplication::quit();
        }
        const QByteArray json = QJsonDocument(pairs).toJson(QJsonDocument::Compact);
        page_.runJavaScript(QString(kScript) + "(" + QString::fromUtf8(json) + ")",
                            [this](const QVariant& answer) { Compare(answer.toList()); });
    }

    void Compare(const QVariantList& answers) {
        if (answers.isEmpty()) {
            std::printf("The browser does not answer.\n");
            ++differences_;
            return QCoreApplication::quit();
        }
        for (const QVariant& answer : answers) {
            const QStringList browsers = answer.toList()[0].toStringList();
            const QStringList ours = answer.toList()[1].toStringList();
            const QByteArray& sheet = sheets_[asked_++];
            rules_ += static_cast<int>(browsers.size());
            if (browsers == ours) continue;
            ++differences_;
            std::printf("--- %s\nbrowser: %s\nours:    %s\n", sheet.left(600).constData(),
                        browsers.join(" | ").left(600).toUtf8().constData(),
                        ours.join(" | ").left(600).toUtf8().constData());
        }
        AskNext();
    }

    QList<QByteArray> sheets_;
    qsizetype asked_ = 0;
    int rules_ = 0;
    int differences_ = 0;
    QWebEnginePage page_;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) return 2;
    QList<QByteArray> sheets = MadeSheets(QByteArray(argv[1]).toInt());
    for (int i = 2; i < argc; ++i) {
        QFile file(argv[i]);
        if (!file.open(QIODevice::ReadOnly)) return 2;
        sheets.append(file.readAll());
    }
    const morpho::QtProgram qt;
    const Comparison comparison(std::move(sheets));
    QCoreApplication::exec();
    return comparison.Differences() == 0 ? 0 : 1;
}
