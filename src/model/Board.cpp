#include "model/Board.h"

#include "model/Fields.h"
#include "model/Groups.h"

#include <stdexcept>

namespace tessarin {

namespace {
Board* theBoard = nullptr;
}

Board::Board() {
    theBoard = this;
}

Board::~Board() {
    if (theBoard == this) theBoard = nullptr;
}

Board& Board::Current() {
    if (theBoard == nullptr) throw std::logic_error("there is no game");
    return *theBoard;
}

} // namespace tessarin
