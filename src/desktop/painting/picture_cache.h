// Pictures by path, each decoded once on a thread of its own, with their sizes and scaled copies. What both screens
// paint and what the program asks of a picture comes from here; nothing here waits for a disk.
#pragma once

#include <QCache>
#include <QHash>
#include <QObject>
#include <QPixmap>
#include <QString>
#include <QThreadPool>
#include <functional>
#include <vector>

#include "desktop/painting/picture_file.h"
#include "platform/ports.h"

namespace pawnfield {

class PictureCache : public QObject, public PictureReader {
  Q_OBJECT
 public:
  PictureCache();
  ~PictureCache() override;
  PictureCache(const PictureCache&) = delete;
  PictureCache& operator=(const PictureCache&) = delete;

  void Look(const std::string& path, std::function<void(const PictureFacts&)> then) override;
  void Check(const std::string& path, std::function<void(const PictureFacts&)> then) override;
  void Hold(const std::string& path) override;

  // Keeps the bytes of a folder's small pictures from now on: the program's own are shown without a look at the disk.
  void HoldFolder(const std::string& folder);

  // The picture at exactly that size in pixels; cover keeps its shape and cuts what overhangs, else it is stretched.
  enum class Fill { Stretch, Cover };
  QPixmap Scaled(const std::string& path, const QSize& size, Fill fill);
  // The picture as it was decoded; null when it can't be read, and until it has been: see Decoded.
  QPixmap Original(const std::string& path);
  // Nothing is being read or waits to be.
  bool IsIdle() const { return running_ == 0; }

 signals:
  // The picture of that path has come, or is another now.
  void Decoded(const std::string& path);

 private:
  struct Held {
    QPixmap Pixels;
    int Version = 0;
  };
  // What the worker reports of a file.
  struct Outcome {
    ReadPicture Picture;
    // Differs for two states of one file; empty for none.
    QString Stamp;
    // Nothing has changed since the stamp that was handed in.
    bool Unchanged = false;
  };
  struct Known {
    PictureFacts Facts;
    QString Stamp;
  };
  using Then = std::function<void(const PictureFacts&)>;

  static Outcome ReadOutcome(const std::string& path, const QString& stamp, int side);
  void Request(const std::string& path, int priority, Then then);
  void Take(const std::string& path, const Outcome& outcome);
  Held Store(const std::string& path, const ReadPicture& picture);
  // Runs the work beside and hands its result to done between events.
  template <typename Work, typename Done>
  void Beside(int priority, Work work, Done done);

  QCache<QString, Held> originals_;
  QCache<QString, QPixmap> scaled_;
  QHash<QString, Known> known_;
  QHash<QString, std::vector<Then>> waiting_;
  // Whole files, by their paths in small letters.
  QHash<QString, QByteArray> own_;
  int versions_ = 0;
  int running_ = 0;
  QThreadPool worker_;
};

}  // namespace pawnfield
