#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>

#include <string>

namespace lexigrove
{

/// Which of the programs that play in one folder keeps the game there: the first one. Later ones can ask it to come to
/// the front, through a local socket.
class OneGame : public QObject
{
    Q_OBJECT

public:
    /// `folder` is the program folder with its closing separator. A lock left by a crash counts for nothing, and a
    /// folder that cannot be written has no other program that keeps anything.
    explicit OneGame(const std::string& folder);

    [[nodiscard]] bool isFirst() const { return first_; }

    /// Asks the first program to show its window. False when it does not answer.
    [[nodiscard]] bool showFirst() const;

signals:
    /// A later program asks this one to come to the front.
    void showRequested();

private:
    QLockFile lock_;
    QString name_; ///< of the socket
    QLocalServer server_;
    bool first_ = true;
};

} // namespace lexigrove
