#pragma once

#include <QLocale>
#include <QTranslator>

// The program's catalogue and the toolkit's own (standard dialogs and buttons) for the first of the locale's UI
// languages that is English or has a catalogue. English, a language without a catalogue or a catalogue that does
// not load leaves every text as written. Installed while the object lives.
class Translations {
public:
    explicit Translations(const QLocale& locale = QLocale::system());
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    // The catalogue's language ("de", "pt_BR", ...), empty when the texts stay English.
    QString language() const { return loaded; }

private:
    QTranslator program, toolkit;
    QString loaded;
};
