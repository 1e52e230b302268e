#include "rex/TreeFollower.h"

#include <map>

namespace Rex {

// Follows one entity, and holds a branch for each entity directly below it.
class TreeFollower::Branch : public NotifieeConst {
 public:
   Branch( Corvo::Ptr< Entity const > const & entity, Changed const & changed ) : changed_( changed ) {
      notifierEntityIs( entity );
      isRegisteredNotifieeIs( true );
      NotifieeConst::hasNotificationActiveIs( true );
      followBelow();
   }

   // Stays silent from here on, also where its notification is under way.
   void cut() {
      rexDoZombieReactors( true );
      hasNotificationActiveIs( false );
      for ( auto const & [entity, branch] : std::exchange( below_, {} ) ) {
         branch->cut();
      }
   }

   void onAttribute( AttributeId, void const * ) override {
      if ( !isZombie() ) {
         followBelow();
         auto const changed = changed_; // a copy: the follower may go during the call
         changed();
      }
   }

 private:
   void followBelow() {
      std::map< Entity const *, Corvo::Ptr< Branch > > below;
      notifierEntity()->forEachChild( [&]( Entity & child ) {
         auto const known = below_.find( &child );
         below[&child] = known == below_.end() ? Corvo::makePtr< Branch >( &child, changed_ ) : known->second;
      } );
      below_.swap( below );
      for ( auto const & [entity, branch] : below ) {
         if ( !below_.contains( entity ) ) {
            branch->cut();
         }
      }
   }

   Changed const & changed_; // of the follower, which cuts its branches before it goes
   std::map< Entity const *, Corvo::Ptr< Branch > > below_;
};

TreeFollower::TreeFollower( Corvo::Ptr< Entity const > root, Changed changed )
   : root_( std::move( root ) ), changed_( std::move( changed ) ) {}

TreeFollower::~TreeFollower() {
   activeIs( false );
}

void TreeFollower::activeIs( bool active ) {
   if ( active && !branch_ && root_ ) {
      branch_ = Corvo::makePtr< Branch >( root_, changed_ );
   } else if ( !active && branch_ ) {
      std::exchange( branch_, nullptr )->cut();
   }
}

} // namespace Rex
