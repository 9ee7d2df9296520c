#include "layout_files.h"

std::string NameListBytes(const std::vector<Layout>& Layouts)
{
    std::string Bytes;
    for (const Layout& L : Layouts) Bytes += L.Offset + L.Name + "\n";
    return Bytes;
}

std::string GeometryBytes(const std::vector<Layout>& Layouts, int List)
{
    std::string Bytes;
    const auto Put = [&Bytes](int Value) {
        Bytes += static_cast<char>(Value & 255);
        Bytes += static_cast<char>(Value >> 8);
    };
    for (const Layout& L : Layouts) {
        if (L.List != List) continue;
        for (const LayoutTile& Tile : L.Tiles) {
            Put(Tile.X);
            Put(Tile.Y);
            Put(Tile.Z);
        }
    }
    return Bytes;
}
