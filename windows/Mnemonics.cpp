#include "windows/Mnemonics.h"

#include <QHash>
#include <QSet>
#include <QVariant>
#include <QVector>
#include <algorithm>

namespace calvoro {
namespace {

bool CanBeKey(QChar character) {
    return character.isLetterOrNumber() && character.unicode() < 0x80;
}

// Places in a caption that may carry the mark, best first: beginnings of words, then all others.
QVector<qsizetype> Candidates(const QString& caption) {
    QVector<qsizetype> beginnings;
    QVector<qsizetype> others;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (!CanBeKey(caption[i])) continue;
        const bool beginsWord = i == 0 || !caption[i - 1].isLetterOrNumber();
        (beginsWord ? beginnings : others).push_back(i);
    }
    return beginnings + others;
}

// Gives every caption a key of its own as far as that is possible: a caption that finds all its keys taken
// makes an earlier one move to another of its keys.
class KeyChoice {
public:
    KeyChoice(const QStringList& captions, qsizetype firstServed)
        : captions_(captions), firstServed_(firstServed), places_(captions.size(), -1) {
        for (qsizetype caption = 0; caption < captions.size(); ++caption) {
            QSet<QChar> tried;
            Place(caption, tried);
        }
    }

    qsizetype PlaceOf(qsizetype caption) const { return places_[caption]; }

private:
    bool Place(qsizetype caption, QSet<QChar>& tried) {
        const QVector<qsizetype> candidates = Candidates(captions_[caption]);
        const auto isFree = [&](qsizetype place) { return !owners_.contains(Key(caption, place)); };
        const auto free = std::find_if(candidates.begin(), candidates.end(), isFree);
        if (free != candidates.end()) {
            Take(caption, *free);
            return true;
        }
        return std::any_of(candidates.begin(), candidates.end(), [&](qsizetype place) {
            const QChar key = Key(caption, place);
            if (tried.contains(key)) return false;
            tried.insert(key);
            if (owners_.value(key) < firstServed_) return false;
            if (!Place(owners_.value(key), tried)) return false;
            Take(caption, place);
            return true;
        });
    }

    QChar Key(qsizetype caption, qsizetype place) const { return captions_[caption][place].toLower(); }

    void Take(qsizetype caption, qsizetype place) {
        owners_.insert(Key(caption, place), caption);
        places_[caption] = place;
    }

    const QStringList& captions_;
    qsizetype firstServed_;
    QVector<qsizetype> places_;  // by caption; -1 for none
    QHash<QChar, qsizetype> owners_;
};

}  // namespace

QStringList WithMnemonics(const QStringList& captions, qsizetype firstServed) {
    const KeyChoice choice(captions, firstServed);
    QStringList marked = captions;
    for (qsizetype caption = 0; caption < marked.size(); ++caption) {
        const qsizetype place = choice.PlaceOf(caption);
        if (place >= 0) marked[caption].insert(place, QLatin1Char('&'));
    }
    return marked;
}

void SetMnemonics(const QList<QWidget*>& controls, qsizetype firstServed) {
    QStringList captions;
    for (const QWidget* control : controls) captions.push_back(Caption(*control));
    const QStringList marked = WithMnemonics(captions, firstServed);
    for (qsizetype i = 0; i < controls.size(); ++i) SetCaption(*controls[i], marked[i]);
}

QString Caption(const QWidget& control) {
    return WithoutMnemonic(control.property("text").toString());
}

void SetCaption(QWidget& control, const QString& caption) {
    control.setProperty("text", caption);
}

QString WithoutMnemonic(const QString& caption) {
    QString plain = caption;
    return plain.remove(QLatin1Char('&'));
}

}  // namespace calvoro
