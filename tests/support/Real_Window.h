// The built program in a real window: a display of its own, the program on a copy of its folder,
// and a user's keys and mouse from outside.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>
#include <memory>
#include <string>

namespace Real_Window {

/// An X display that nobody sees, for as long as the object lives.
class Display {
 public:
  Display();
  ~Display();
  QString Name() const { return name_; }
  /// Runs a command on this display and returns what it printed, without the last line break.
  QString Run(const QString& command, const QStringList& arguments) const;
  /// Starts a command on this display and leaves it running.
  std::unique_ptr<QProcess> Begin(const QString& command, const QStringList& arguments) const;

 private:
  QProcess server_;
  QString name_;
  QTemporaryDir settings_;  ///< where programs on this display keep theirs, never the user's
};

/// A window manager on a display, for as long as the object lives. It passes the click on that
/// brings a window to the front, and does so before the window is there.
class Window_Manager {
 public:
  explicit Window_Manager(const Display& display);
  ~Window_Manager();

 private:
  QTemporaryDir home_;
  std::unique_ptr<QProcess> process_;
};

/// The program, started in a folder of its own with a copy of the delivered data file.
class Program {
 public:
  explicit Program(const Display& display);
  ~Program();

  void Start(const QStringList& options = {});
  /// Ends it at once, as nothing else does.
  void Kill();
  /// Waits for its own end; the exit status, or -1 after ten seconds.
  int Wait_For_End();
  bool Is_Running() const;
  /// Waits until a window of this very program has the keys.
  bool Has_Keys() const;

  std::string Folder() const { return folder_.path().toStdString(); }
  std::string Data_File() const { return Folder() + "/dbase/Wine_Cellar.mdb"; }

  /// Waits until a window with exactly this title is shown, and gives it the keys; False after ten
  /// seconds.
  bool Sees_Window(const QString& title) const;
  /// Waits until no window has this title.
  bool Window_Has_Gone(const QString& title) const;
  /// Presses Return in the message box of this title until it has gone; False after ten seconds.
  bool Answer_Box(const QString& title) const;
  /// Presses keys one after the other, by their X names: "alt+m", "Down", "Return".
  void Press(const QStringList& keys) const;
  void Type(const QString& text) const;
  /// Clicks into the window of this title, so many pixels from its right and its lower edge,
  /// whether it is in front or not.
  void Click(const QString& title, int from_right, int from_below) const;
  void Take_Picture(const QString& file) const;

 private:
  QString Window_Of(const QString& title) const;
  void Focus(const QString& window) const;

  const Display& display_;
  QTemporaryDir folder_;
  std::unique_ptr<QProcess> process_;
};

}  // namespace Real_Window
