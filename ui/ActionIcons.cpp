#include "ActionIcons.h"

#include <QAction>
#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>
#include <QPixmap>
#include <QWidget>

namespace {

struct ActionPicture {
    const char* action;
    const char* picture;
};

const ActionPicture kPictures[] = {
    {"actionNewGameCompleted", "blue_resolved"}, {"actionNewGameVeryEasy", "blue_very_easy"},
    {"actionNewGameEasy", "blue-easy"},          {"actionNewGameMedium", "blue_normal"},
    {"actionNewGameHard", "blue_hard"},          {"actionNewGameUserEdit", "blue_empty"},
    {"actionOpenGame", "open_game"},             {"actionSaveGame", "save_game"},
    {"actionPrint", "printer"},                  {"actionMakeMove", "make_move"},
    {"actionRetractMove", "retract_move"},       {"actionAbout", "about"},
};

// Read as PNG, without asking the image-format plugins whether they know
// the file better: that would load every one of them.
QImage readPicture(const QString& name) {
    // A name ending in @2x gives the picture a device pixel ratio of 2.
    QImageReader reader(QStringLiteral(":/Sudoku/Resources/") + name, "png");
    reader.setAutoDetectImageFormat(false);
    return reader.read();
}

}  // namespace

// As QIcon does, the pictures drawn at twice the size only where a pixel is larger than a device pixel.
ActionIcons::ActionIcons()
    : reader([this, twice = qApp->devicePixelRatio() > 1] {
          for (const ActionPicture& entry : kPictures) {
              const QString name = QString::fromLatin1(entry.picture);
              pictures.push_back(readPicture(name + QStringLiteral(".png")));
              if (twice) pictures.push_back(readPicture(name + QStringLiteral("@2x.png")));
          }
      }) {}

void ActionIcons::apply(QWidget* window) {
    reader.join();
    const size_t perAction = pictures.size() / std::size(kPictures);
    for (size_t i = 0; i < std::size(kPictures); ++i) {
        QIcon icon;
        for (size_t k = 0; k < perAction; ++k) icon.addPixmap(QPixmap::fromImage(pictures[i * perAction + k]));
        if (auto* action = window->findChild<QAction*>(QLatin1String(kPictures[i].action))) action->setIcon(icon);
    }
}
