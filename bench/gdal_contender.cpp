// GDAL fits both ways at once, and maps arrays of x and of y in place.
#include "georef.h"

#include <memory>

#include <gdal_alg.h>

namespace ZrProj::bench {
namespace {

using Transformer = std::shared_ptr<void>;

std::vector<GDAL_GCP> gcpsOf(GeorefControls const& controls) {
    static char nothing[] = "";
    std::vector<GDAL_GCP> result;
    for (std::size_t i = 0; i < controls.source.size(); ++i)
        result.push_back({nothing, nothing, controls.source[i].x, controls.source[i].y, controls.target[i].x,
                          controls.target[i].y, 0});
    return result;
}

int orderOf(TransformMethod method) {
    return method == TransformMethodAffinePolynomial ? 1 : method == TransformMethod2ndOrderPolynomial ? 2 : 3;
}

GeorefContender::Map mapBy(Transformer const& transformer, GDALTransformerFunc function) {
    return [=](std::vector<double>& x, std::vector<double>& y) {
        static std::vector<double> z;
        static std::vector<int> success;
        z.resize(x.size());
        success.resize(x.size());
        function(transformer.get(), FALSE, static_cast<int>(x.size()), x.data(), y.data(), z.data(), success.data());
    };
}

GeorefContender::Map fit(TransformMethod method, GeorefControls const& controls) {
    auto gcps = gcpsOf(controls);
    auto const count = static_cast<int>(gcps.size());
    if (method == TransformMethodThinPlateSpline)
        return mapBy(Transformer(GDALCreateTPSTransformer(count, gcps.data(), FALSE), GDALDestroyTPSTransformer),
                     GDALTPSTransform);
    return mapBy(
        Transformer(GDALCreateGCPTransformer(count, gcps.data(), orderOf(method), FALSE), GDALDestroyGCPTransformer),
        GDALGCPTransform);
}

} // namespace

GeorefContender gdalContender() {
    return {.name = "GDAL", .fit = fit};
}

} // namespace ZrProj::bench
