// Has calls that come later reach their object only as long as it lives.
//
//    connection.ask( words, tether_.of( [this]( RedisReply reply ) { … } ) );      // Tether tether_;
//
// Threading: one thread.
#pragma once

#include <memory>
#include <utility>

namespace Live {

class Tether {
 public:
   Tether() = default;
   Tether( Tether const & ) = delete;
   Tether & operator=( Tether const & ) = delete;

   template< class Call >
   auto of( Call call ) const {
      return [life = std::weak_ptr< char >( life_ ), does = std::move( call )]( auto const &... with ) {
         if ( !life.expired() ) {
            does( with... );
         }
      };
   }
   // What was tied before comes no more.
   void cut() { life_ = std::make_shared< char >(); }

 private:
   std::shared_ptr< char > life_ = std::make_shared< char >();
};

} // namespace Live
