#pragma once

class QWidget;

// A window is not grown by its layout when wrapped text needs more lines (a sentence that
// appeared, an answer that arrived): its widgets are squeezed over each other instead. These
// windows grow themselves; the width stays as the person left it.
namespace WindowRoom {

// Grows `window` to the height its layout needs at its present width; never shrinks it.
void makeRoom(QWidget* window);

}  // namespace WindowRoom
