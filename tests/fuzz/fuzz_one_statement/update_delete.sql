update tWache set Wert = 'weg' ; -- und
 delete from tWache