// Each catalogue against the texts lupdate finds in ui/: none missing, unfinished or obsolete; %1, line breaks and &
// kept; no mnemonic twice in a menu; no sentence in the sources that bypasses translation.
#include <QtWidgets>

#include "Translations.h"
#include "WindowTestSupport.h"

struct Message { QString type, translation; };
using Catalogue = QMap<QString, Message>;  // "context|source" → translation

static Catalogue read(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) qFatal("cannot read %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    Catalogue out;
    QString context, source;
    while (!xml.atEnd())
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        else if (xml.name() == QLatin1String("name")) context = xml.readElementText();
        else if (xml.name() == QLatin1String("source")) source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation"))  // the type read first: a braced list runs in order
            out[context + '|' + source] = {xml.attributes().value("type").toString(), xml.readElementText()};
    if (xml.hasError()) qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return out;
}

// The texts of `marks` in `text`, in order: placeholders, line breaks and "&" marks must survive translation.
static QStringList marks(const QString& text) {
    static const QRegularExpression pattern("%\\d|\\n|&&|&(?!&)");
    QStringList out;
    for (auto it = pattern.globalMatch(text); it.hasNext();) out << it.next().captured();
    return out.sort(), out;
}

// No two entries of one menu underline the same letter.
static void expectUniqueMnemonics(const QString& menu, const QList<QAction*>& actions) {
    QMap<QString, QString> seen;
    for (QAction* a : actions) {
        const QString key = QRegularExpression("&([^&])").match(QString(a->text()).remove("&&")).captured(1).toLower();
        QVERIFY2(key.isEmpty() || !seen.contains(key), qPrintable(menu + ": " + seen[key] + " / " + a->text()));
        seen[key] = a->text();
    }
}

class CatalogueTest : public QObject {
    Q_OBJECT

    Catalogue current;  // every text of the sources, as lupdate finds them

private slots:
    void initTestCase() {
        QTemporaryDir dir;
        const QString ts = dir.filePath("sudoku-vantu_xx.ts");
        const QStringList arguments{"-silent", "-locations", "none", SUDOKU_SOURCE_DIR "/ui", "-ts", ts};
        QCOMPARE(QProcess::execute(SUDOKU_LUPDATE, arguments), 0);
        current = read(ts);
    }

    void catalogue_data() { addLanguageRows(); }
    void catalogue() {
        QFETCH(QString, language);
        const Catalogue catalogue = read(QString(SUDOKU_SOURCE_DIR "/translations/sudoku-vantu_%1.ts").arg(language));
        QCOMPARE(catalogue.keys(), current.keys());  // none missing, none left over
        for (auto it = catalogue.cbegin(); it != catalogue.cend(); ++it) {
            const QString& key = it.key();
            QVERIFY2(it->type.isEmpty() && !it->translation.isEmpty(), qPrintable("unfinished or obsolete: " + key));
            QVERIFY2(marks(key.section('|', 1)) == marks(it->translation), qPrintable("%1, \\n or & lost: " + key));
        }
        const Translations translations{QLocale(language)};  // compiled, in the window: no mnemonic twice in a menu
        QCOMPARE(translations.language(), language);
        SudokuWindow window;
        expectUniqueMnemonics("menu bar", window.menuBar()->actions());
        for (QMenu* menu : window.findChildren<QMenu*>()) expectUniqueMnemonics(menu->title(), menu->actions());
    }

    // A sentence literal in ui/ (a capital first, a space, no style sheet) is marked for tr() or on a "notr" line.
    void everySentenceTranslated() {
        const QRegularExpression literal("\"((?:[^\"\\\\\\n]|\\\\.)*)\""), sentence("^[A-Z][^{;]* [^{;]*$");
        const QRegularExpression skip("^\\s*//|^#include|notr");
        const QRegularExpression marked("(\\btr|QT_TR_NOOP|QT_TRANSLATE_NOOP|translate)\\(\\s*(\"[^\"]*\",\\s*)?$");
        QDir ui(SUDOKU_SOURCE_DIR "/ui");
        for (const QString& name : ui.entryList({"*.cpp", "*.h"})) {
            QFile file(ui.filePath(name));
            QVERIFY(file.open(QIODevice::ReadOnly));
            const QString code = QString::fromUtf8(file.readAll());
            for (auto it = literal.globalMatch(code); it.hasNext();) {
                const QRegularExpressionMatch m = it.next();
                const int at = int(m.capturedStart()), from = std::max(0, at - 200);
                const QString line = code.mid(code.lastIndexOf('\n', at) + 1).section('\n', 0, 0);
                if (!sentence.match(m.captured(1)).hasMatch() || skip.match(line).hasMatch()) continue;
                QVERIFY2(marked.match(code.mid(from, at - from)).hasMatch(),
                         qPrintable(name + ": not translated: " + m.captured(1)));
            }
        }
    }

    // The desktop's languages are taken in order, one without a catalogue skipped (ctest sets LANGUAGE=nl:fr:de).
    void desktopLanguages() {
        if (qgetenv("LANGUAGE") != "nl:fr:de") QSKIP("needs LANGUAGE=nl:fr:de, as ctest sets it");
        QCOMPARE(Translations().language(), QString("fr"));
    }

    // English, and a language without a catalogue, leave every text as written.
    void englishStays_data() {
        QTest::addColumn<QString>("locale");
        for (const char* locale : {"en_US", "en_GB", "C", "nl_NL", "pt_PT"}) QTest::newRow(locale) << locale;
    }
    void englishStays() {
        QFETCH(QString, locale);
        const Translations translations{QLocale(locale)};
        SudokuWindow window;
        QCOMPARE(window.menuBar()->actions().first()->text(), QString("&Game"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QString("Cancel"));
    }
};

QTEST_MAIN(CatalogueTest)
#include "test_catalogues.moc"
