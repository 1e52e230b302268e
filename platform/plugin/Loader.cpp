#include "plugin/Loader.h"

namespace Plugin::Impl {

void LoaderImpl::registerPlugin( std::string const & loaderFirst,
                                 std::string const & pluginName,
                                 std::string const & loaderSecond,
                                 std::string const & fourth,
                                 std::string const & fifth,
                                 LoaderInitCaller * caller ) {
   registrations_.push_back( { loaderFirst, pluginName, loaderSecond, fourth, fifth, caller } );
}

} // namespace Plugin::Impl
