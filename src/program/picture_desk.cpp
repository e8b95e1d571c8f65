#include "program/picture_desk.h"

#include "program/program.h"

namespace wortlex {

PictureDesk picture_desk(const WindowPorts& ports) {
    return {ports.easel,   ports.pictures,        ports.files,
            ports.prompts, ports.program.folders, ports.program.settings.jpg_quality};
}

} // namespace wortlex
