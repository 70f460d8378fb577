// SPDX-License-Identifier: GPL-3.0-or-later
// canvas_gallery FOLDER: draws the states of the canvas and of the preview strip, light and dark, to look at.
#include <QApplication>
#include <QDragEnterEvent>
#include <QEventLoop>
#include <QGridLayout>
#include <QMimeData>
#include <QPainter>
#include <QUrl>

#include "composition/view/FolderView.h"
#include "composition/view/PreviewStrip.h"
#include "system/KindIcons.h"

using namespace quorvane;

namespace {

QPalette paletteOf(bool dark) {
  const QColor window(dark ? 0x20 : 0xf6, dark ? 0x21 : 0xf7, dark ? 0x24 : 0xf9);
  QPalette palette(QColor(128, 128, 128), window);
  palette.setColor(QPalette::Base, dark ? QColor(0x29, 0x2b, 0x2f) : QColor(Qt::white));
  palette.setColor(QPalette::Highlight, dark ? QColor(0x41, 0x84, 0xfa) : QColor(0x25, 0x63, 0xeb));
  const QColor text = dark ? QColor(0xe8, 0xea, 0xed) : QColor(0x1f, 0x23, 0x28);
  for (const auto role : {QPalette::Text, QPalette::WindowText}) palette.setColor(role, text);
  palette.setColor(QPalette::PlaceholderText, dark ? QColor(0x9a, 0xa0, 0xa6) : QColor(0x6b, 0x72, 0x80));
  return palette;
}

void setLook(FolderView& view) {
  view.setCurrentIcon(OwnKindIcons().systemIcon(FourCharCode("fldr")));
  view.setLabel(QStringLiteral("Holiday\nPhotos"));
  view.setFont(LabelFont{QStringLiteral("Noto Sans"), QStringLiteral("Bold"), 30});
  view.setColor(QColor(Qt::white));
  view.setShadow(LabelShadow{2, -2, 3.5F, QColor(0, 0, 0, 128)});
  view.setCanvasLabelCenter({64, 58});
}

QImage pictureOf(QWidget& widget, double density) {
  QImage image(widget.size() * density, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(density);
  image.fill(widget.palette().color(QPalette::Window));
  widget.render(&image, {}, {}, QWidget::DrawChildren);
  return image;
}

struct State {
  const char* name;
  int magnification;
  double density;
  void (*prepare)(FolderView&);
};

const State states[] = {
    {"placeholder", 2, 1,
     [](FolderView& view) {
       view.setCurrentIcon(std::nullopt);
       view.setLabel(std::nullopt);
     }},
    {"hover", 2, 1,
     [](FolderView& view) {
       view.setCurrentIcon(std::nullopt);
       view.setLabel(std::nullopt);
       static QMimeData data;
       data.setUrls({QUrl(QStringLiteral("file:///tmp"))});
       QDragEnterEvent event(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
       QApplication::sendEvent(&view, &event);
     }},
    {"label", 2, 1, [](FolderView&) {}},
    {"past", 2, 1,
     [](FolderView& view) {
       view.setCanvasLabelCenter({100, 66});
     }},
    {"drag", 2, 1,
     [](FolderView& view) {
       view.mouseDown({0, 0});
       view.mouseDragged({0, 0});
     }},
    {"one", 1, 1, [](FolderView&) {}},
    {"one-dense", 1, 2,
     [](FolderView& view) {
       view.setCanvasLabelCenter({64, 104});
     }},
    {"three", 3, 1, [](FolderView&) {}},
    {"fraction", 2, 1.25, [](FolderView& view) { view.setRotation(12); }},
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(".");
  bool done = true;
  for (const bool dark : {false, true}) {
    const QString suffix = dark ? QStringLiteral("-dark.png") : QStringLiteral("-light.png");
    QApplication::setPalette(paletteOf(dark));
    for (const State& state : states) {
      FolderView view;
      view.setMagnification(state.magnification);
      view.resize(view.sizeHint());
      setLook(view);
      state.prepare(view);
      done =
          pictureOf(view, state.density).save(folder + QLatin1Char('/') + QLatin1String(state.name) + suffix) && done;
    }
    FolderView view;
    setLook(view);
    view.setColor(QColor(160, 190, 240));
    view.setShadow(std::nullopt);
    view.setLabel(QStringLiteral("Holiday photos of us all"));
    PreviewStrip strip(nullptr);
    strip.resize(strip.sizeHint());
    QEventLoop loop;
    QObject::connect(&strip, &PreviewStrip::settled, &loop, &QEventLoop::quit);
    strip.setComposition(view.composition());
    loop.exec();
    done = pictureOf(strip, 1).save(folder + QStringLiteral("/strip") + suffix) && done;
  }
  return done ? 0 : 1;
}
