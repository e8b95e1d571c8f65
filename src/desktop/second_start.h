// What becomes of a second start in a brewery folder: its file goes to the program that runs there.
#pragma once

#include "base/open_file.h"

#include <QObject>

#include <functional>
#include <string>

namespace wortlex {

/// Hands a file, its whole path in native bytes, to the program that holds `folder`; an empty one only brings
/// that program forward. False if it does not answer within a few seconds.
bool hand_over(const std::string& folder, const std::string& path);

/// Takes what second starts hand over. For the one program that holds the folder.
class SecondStarts : public QObject {
public:
    using Receive = std::function<void(const std::string& path)>;

    SecondStarts(const std::string& folder, Receive receive);
    ~SecondStarts() override;

private:
    void take_next();

    Receive receive_;
    std::string place_;
    OpenFile socket_;
};

} // namespace wortlex
