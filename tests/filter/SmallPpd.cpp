// SPDX-License-Identifier: Apache-2.0
#include "filter/SmallPpd.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

std::string smallPpd()
{
    return R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "SMALL.PPD"
*Manufacturer: "Lab"
*Product: "(Small)"
*ModelName: "Lab Small"
*ShortNickName: "Lab Small"
*NickName: "Lab Small"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*Throughput: "1"
*LandscapeOrientation: Plus90
*TTRasterizer: Type42
*cupsModelNumber: 18
*cupsFilter: "application/vnd.cups-raster 50 rastertolabel"
*OpenUI *PageSize/Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: w162h90
*PageSize w162h90/57 x 32 mm: "<</PageSize[162 90]/ImagingBBox null>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Size: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: w162h90
*PageRegion w162h90/57 x 32 mm: "<</PageSize[162 90]/ImagingBBox null>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: w162h90
*ImageableArea w162h90/57 x 32 mm: "0 0 162 90"
*DefaultPaperDimension: w162h90
*PaperDimension w162h90/57 x 32 mm: "162 90"
*OpenUI *Resolution/Resolution: PickOne
*OrderDependency: 20 AnySetup *Resolution
*DefaultResolution: 203dpi
*Resolution 203dpi/203 dpi: "<</HWResolution[203 203]/cupsBitsPerColor 1/cupsColorSpace 3>>setpagedevice"
*Resolution 300dpi/300 dpi: "<</HWResolution[300 300]/cupsBitsPerColor 1/cupsColorSpace 3>>setpagedevice"
*CloseUI: *Resolution
*OpenUI *Darkness/Darkness: PickOne
*OrderDependency: 30 AnySetup *Darkness
*DefaultDarkness: 10
*Darkness 10/10: "<</cupsCompression 33>>setpagedevice"
*Darkness 20/20: "<</cupsCompression 66>>setpagedevice"
*CloseUI: *Darkness
*DefaultFont: Courier
*Font Courier: Standard "(1.05)" Standard ROM
*% End of SMALL.PPD
)ppd";
}

std::string with(std::string text, const std::string &from, const std::string &to)
{
    const std::size_t place = text.find(from);
    if (place == std::string::npos) {
        throw std::runtime_error("the PPD does not hold " + from);
    }
    return text.replace(place, from.size(), to);
}

std::string contentsOf(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        throw std::runtime_error(path + " cannot be read");
    }
    return {std::istreambuf_iterator<char>(file), {}};
}
